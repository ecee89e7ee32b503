#pragma once

#include "base/ZFXResult.h"
#include "text/ZFXUnicodeString.h"

#include <cstdint>
#include <string>

// The module raises every error that a user must understand through InputErrorReturn. No other code of the module
// creates an error object.

/// The message ids of MessageIds.def.
enum class MessageId : std::uint8_t {
#define MESSAGE_ID(id, raisedBy) id,
#include "MessageIds.def"
#undef MESSAGE_ID
};

[[nodiscard]] const char* TextOf(MessageId id) noexcept;

/// The return code of an error that rejects a name for its characters or as a duplicate.
inline constexpr HRESULT kNameRejected = -100;

/// What some errors contain in addition to their message id.
struct InputErrorDetails {
    HRESULT returnCode = 0;                 ///< 0 for none
    ZFXUnicodeString* diagnostic = nullptr; ///< parameter of the diagnostic text, or null. [borrowed]
};

/// The position of a statement in the sources, which the error records.
struct SourcePosition {
    const char* file; ///< [borrowed]
    int line;
};

/// The position of the statement that contains this macro. clang 14 has no std::source_location.
#define QVR_HERE (SourcePosition{__FILE__, __LINE__})

/// Registers an input error with the message id.
/// Returns the code under which ZFXError::ZFXGetLastError finds the error.
[[nodiscard]] HRESULT InputErrorReturn(SourcePosition position, MessageId id, const InputErrorDetails& details = {});
/// Registers an input error with the id of another error. `id` is a copy, because the registry may free that error.
[[nodiscard]] HRESULT InputErrorReturn(SourcePosition position, const std::string& id);
