#include "QVRGenZFXUnicodeStringUtils.h"

#include "support/Results.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

using Utils = QVRGenZFXUnicodeStringUtils;

// docs/operations.md has an example of each of these functions.
TEST(StringUtils, RemoveAndReplaceCharacters) {
    EXPECT_EQ(Utils::RemoveDoubleQuotes("\"a\"b"), "ab");
    EXPECT_EQ(Utils::RemovePeriods(Repeated('.', kMillion)), "");
    EXPECT_EQ(Utils::RemoveLeadingSpaces(Repeated(' ', kMillion)), "");
    EXPECT_EQ(Utils::ReplaceBackslashWithForwardslash("\\a\\b"), "/a/b");
    EXPECT_EQ(Utils::ReplacePeriodWithDash("1.2.3"), "1-2-3");
}

TEST(StringUtils, TruncateTo72Units) {
    for (const int length : {0, 72, 73, kMillion})
        EXPECT_EQ(Utils::TrucateToLegalLength(Repeated('a', length)), Repeated('a', std::min(length, 72)));
    EXPECT_EQ(Utils::TrucateToLegalLength(Repeated('a', 71) + "😀"),
              Repeated('a', 71) + ZFXUnicodeString(u"\xD83D")); // splits the surrogate pair
}

TEST(StringUtils, ReadIntegersFromTheEndUntilAnInvalidOne) {
    // The text, the separator, the list and the remaining text. The list contains 7 before the call.
    // clang-format off
    const std::tuple<const char*, const char*, std::vector<int>, const char*> rows[] = {
        {"1,2,3", ",", {7, 3, 2, 1}, "1"}, {"10,20,x,30", ",", {7, 30, 20, 10}, "10"}, {"", ",", {7}, ""},
        {"5", ",", {7, 5}, "5"}, {",,", ",", {7}, ""}, {"1, -2,3b", ",", {7, 3, -2, 1}, "1"},
        {"1::2", "::", {7, 1}, "1"}, // only the first colon is removed: ":2" is not a number
        {"1--2", "--", {7, -2, 1}, "1"}, {"1,2", "", {7, 1}, "1,2"}, {"a,99999999999,3", ",", {7, 3}, "a"},
        {"2147483647,-2147483648,2147483648,+4", ",", {7, 4, -2147483647 - 1, 2147483647}, "2147483647"},
    };
    // clang-format on
    for (const auto& [before, separator, expectedNumbers, expectedText] : rows) {
        ZFXUnicodeString text(before);
        ZFXRawCollint numbers;
        numbers.Append(7);
        EXPECT_EQ(Utils::GetIntegerListFromString(text, numbers, separator), S_OK);
        std::vector<int> found;
        for (int i = 1; i <= numbers.Size(); ++i)
            found.push_back(numbers[i]);
        EXPECT_EQ(found, expectedNumbers) << before;
        EXPECT_EQ(text, expectedText) << before;
    }
}

} // namespace
