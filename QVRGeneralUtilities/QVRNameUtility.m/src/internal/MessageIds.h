#pragma once

#include <cstdint>

/// The message ids as values, so that none can be misspelt where it is raised.
enum class MessageId : std::uint8_t {
#define MESSAGE_ID(id) id,
#include "internal/MessageIds.def"
#undef MESSAGE_ID
};

constexpr const char* TextOf(MessageId id) noexcept {
    switch (id) {
#define MESSAGE_ID(id)                                                                                                 \
    case MessageId::id:                                                                                                \
        return #id;
#include "internal/MessageIds.def"
#undef MESSAGE_ID
    }
    return "";
}
