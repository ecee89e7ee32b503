#include "QVRNameUtility.h"

#include "errors/MessageCatalog.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace {

TEST(Vocabulary, RowsAndTheirOrderAreUnchanged) {
    const std::string_view rows =
#define NAMED_WORD(name, text) #name "=" text "\n"
#include "Vocabulary.def"
#undef NAMED_WORD
        ;
    std::uint64_t checksum = 14695981039346656037U; // FNV-1a, 64 bits
    for (const char c : rows)
        checksum = (checksum ^ static_cast<unsigned char>(c)) * 1099511628211U;
    EXPECT_EQ(checksum, 0x3902842794EE2262U) << rows;
    EXPECT_EQ(HALVERN_WORKS_UXM2_INTERNAL_QVRNameUtility(), 1);
}

TEST(MessageIds, EachHasADiagnosticAndAnAdvice) {
    const char* const ids[] = {
#define MESSAGE_ID(id, raisedBy) #id,
#include "internal/MessageIds.def"
#undef MESSAGE_ID
    };
    for (const std::string id : ids)
        for (const char* section : {".Diagnostic", ".Advice"}) {
            const auto text = MessageCatalog::Find("QVRNameUtility", id + section);
            EXPECT_GT(text.value_or("").GetLengthInChar(), 10) << id << section;
        }
}

} // namespace
