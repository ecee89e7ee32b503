#include <gtest/gtest.h>

#include <cstdint>
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
}

} // namespace
