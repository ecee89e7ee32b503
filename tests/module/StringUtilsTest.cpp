#include "QVRGenZFXUnicodeStringUtils.h"

#include "support/Results.h"

#include <gtest/gtest.h>

namespace {

using Utils = QVRGenZFXUnicodeStringUtils;

TEST(StringUtils, CleanNames) {
    struct Row {
        ZFXUnicodeString (*clean)(const ZFXUnicodeString&);
        ZFXUnicodeString in;
        const char* out;
    };
    // clang-format off
    const Row rows[] = {
        {Utils::RemoveSpaces, "  a  b ", "ab"}, {Utils::RemoveDoubleQuotes, "\"a\"b", "ab"},
        {Utils::RemoveBackSlashes, "\\a\\\\b/", "ab/"}, {Utils::RemovePeriods, ".1.2.", "12"},
        {Utils::RemoveLeadingSpaces, "   a b ", "a b "}, {Utils::RemoveLeadingUnderscores, "__a_b_", "a_b_"},
        {Utils::RemoveTrailingSpaces, " a b   ", " a b"}, {Utils::RemoveTrailingUnderscores, "_a_b__", "_a_b"},
        {Utils::ReplaceBackslashWithForwardslash, "\\a\\b", "/a/b"},
        {Utils::ReplacePeriodWithDash, "1.2.3", "1-2-3"}, {Utils::RemoveSpaces, "", ""},
        {Utils::RemoveLeadingSpaces, "   ", ""}, {Utils::RemoveTrailingUnderscores, Repeated('_', kMillion), ""},
        {Utils::RemoveLeadingSpaces, Repeated(' ', kMillion) + "a ", "a "}, {Utils::RemovePeriods, Repeated('.', kMillion), ""},
    };
    // clang-format on
    for (const Row& row : rows)
        EXPECT_EQ(Text(row.clean(row.in)), row.out);
    const ZFXUnicodeString cut = Utils::TrucateToLegalLength(Repeated('a', 71) + "😀"); // between the halves
    EXPECT_EQ(Text(cut), std::string(71, 'a') + "\xEF\xBF\xBD");
    for (const int length : {0, 71, 72, 73, 200, kMillion})
        EXPECT_EQ(Utils::TrucateToLegalLength(Repeated('a', length)), Repeated('a', std::min(length, 72)));
}

TEST(StringUtils, ReadIntegersFromTheEnd) {
    struct Row {
        const char* text;
        const char* separator;
        std::vector<int> numbers; // after the 7 that stood there
        const char* left;
    };
    // clang-format off
    const Row rows[] = {
        {"1,2,3", ",", {7, 3, 2, 1}, "1"}, {"10,20,x,30", ",", {7, 30, 20, 10}, "10"}, {"", ",", {7}, ""},
        {"5", ",", {7, 5}, "5"}, {",,", ",", {7}, ""}, {"1, -2,3b", ",", {7, 3, -2, 1}, "1"},
        {"1::2", "::", {7, 1}, "1"}, // the second colon is read as part of the number
        {"1--2", "--", {7, -2, 1}, "1"}, {"1,2", "", {7, 1}, "1,2"}, {"a,99999999999,3", ",", {7, 3}, "a"},
        {"2147483647,-2147483648,2147483648,+4", ",", {7, 4, -2147483647 - 1, 2147483647}, "2147483647"},
    };
    // clang-format on
    for (const Row& row : rows) {
        ZFXUnicodeString text(row.text);
        ZFXRawCollint numbers;
        numbers.Append(7);
        EXPECT_EQ(Utils::GetIntegerListFromString(text, numbers, row.separator), S_OK);
        std::vector<int> seen;
        for (int i = 1; i <= numbers.Size(); ++i)
            seen.push_back(numbers[i]);
        EXPECT_EQ(seen, row.numbers) << row.text;
        EXPECT_EQ(Text(text), row.left) << row.text;
    }
}

} // namespace
