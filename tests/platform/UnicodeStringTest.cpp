#include "support/Results.h"

#include "text/ZFXUnicodeString.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

using namespace std::string_view_literals;
using String = ZFXUnicodeString;

namespace {

const String kLong = Repeated('x', 100); // too long for the storage in the object

TEST(UnicodeString, ACopyHasATextOfItsOwn) {
    for (const String& original : {String(""), String("Step-1"), Repeated('a', 32), Repeated('a', 33), kLong}) {
        String copy(original);
        EXPECT_STREQ(copy, original);
        String moved(std::move(copy));
        EXPECT_STREQ(copy, ""); // NOLINT(bugprone-use-after-move): a moved-from string is empty
        String assigned("something else that is longer than the inline storage of a string");
        EXPECT_STRNE(assigned, original);
        assigned = std::move(moved);
        EXPECT_STREQ(moved, ""); // NOLINT(bugprone-use-after-move)
        EXPECT_STREQ(assigned, original);
        copy = assigned.Append("!a");
        EXPECT_STREQ(copy, original + "!a");
        assigned.ToUpper();
        EXPECT_EQ(assigned.Compare(copy), 1);
    }
}

TEST(UnicodeString, NarrowTextIsUtf8BothWays) {
    const std::tuple<const char*, int, const char*> rows[] = {
        {"abc", 3, "abc"},
        {"\u0080é", 2, "\u0080é"},
        {"日本", 2, "日本"},
        {"😀", 2, "😀"}, // a surrogate pair
        {"a\x80z", 3, "a\xEF\xBF\xBDz"},
        {"\xC3", 1, "\xEF\xBF\xBD"},                                                 // cut short
        {"\xED\xA0\x80", 3, "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},                 // a surrogate in three bytes
        {"\xC0\xAF", 2, "\xEF\xBF\xBD\xEF\xBF\xBD"},                                 // more bytes than needed
        {"\xF1\x80\x80\x80", 2, "\xF1\x80\x80\x80"},                                 // U+40000
        {"\xF4\x90\x80\x80", 4, "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"}, // above U+10FFFF
    };
    for (const auto& [in, length, out] : rows) {
        const String text(in);
        EXPECT_EQ(text.GetLengthInChar(), length) << in;
        EXPECT_STREQ(text.ConvertToChar(), out);
        EXPECT_EQ(text == in, 1) << in;
        EXPECT_EQ(text == (std::string(in) + "x").c_str(), 0);
    }
}

TEST(UnicodeString, HalfASurrogatePairIsKeptAndWrittenAsReplacement) {
    const std::tuple<std::u16string_view, const char*> rows[] = {
        {u"A\xD800", "A\xEF\xBF\xBD"},
        {u"\xDC00Z", "\xEF\xBF\xBDZ"},
        {u"\xDC00\xD800", "\xEF\xBF\xBD\xEF\xBF\xBD"},                 // low before high
        {u"\xD800\xD800\xDC00", "\xEF\xBF\xBD\xF0\x90\x80\x80"},       // high before a pair
        {u"\xD800\xDC00\xDC00", "\xF0\x90\x80\x80\xEF\xBF\xBD"},       // low after a pair
        {u"\xDBFF\xDFFF\xE000\xD7FF", "\xF4\x8F\xBF\xBF\uE000\uD7FF"}, // neighbours of the halves
    };
    for (const auto& [units, narrow] : rows) {
        String text(units);
        EXPECT_EQ(text.Units(), units);
        EXPECT_STREQ(text, narrow);
        text.ToUpper();
        EXPECT_EQ(text.Units(), units);
    }
}

TEST(UnicodeString, NarrowFormFollowsTheText) {
    String text("aZ é ß ÿ ǆ 𐐨𐑏𐑐 日 ω");
    EXPECT_STREQ(text, "aZ é ß ÿ ǆ 𐐨𐑏𐑐 日 ω");
    text.ToUpper();
    EXPECT_STREQ(text, "AZ É ß Ÿ Ǆ 𐐀𐐧𐑐 日 Ω");
    text.ToLower();
    EXPECT_STREQ(text, "az é ß ÿ ǆ 𐐨𐑏𐑐 日 ω");
    EXPECT_STREQ(text.Append("c"), "az é ß ÿ ǆ 𐐨𐑏𐑐 日 ωc");
}

TEST(UnicodeString, CompareReturns2IfIdentical1IfEqualApartFromCase) {
    // clang-format off
    const std::tuple<String, String, int> rows[] = {
        {"", "", 2}, {"Load-1", "Load-1", 2}, {"Load-1", "LOAD-1", 1}, {"Load-1", "Load-2", 0},
        {"Load-1", "Load-10", 0}, {"a", "", 0}, {"@", "`", 0}, {"[", "{", 0}, {"É", "é", 1}, {"Σ", "ς", 1},
        {"ß", "ẞ", 1}, {"ss", "ß", 0},
        {"\u212A", "k", 1}, // Kelvin sign
        {"ſ", "S", 1},      // long s
        {"𐐀x", "𐐨X", 1}, {"𐐀", "𐐩", 0}, {"𐐧", "𐑏", 1}, {"𐐧x", "𐑐x", 0}, {"İ", "i", 0}, {"日", "日", 2},
        {"\xF1\x80\x80\x80", "\xF1\x80\x80\x81", 0},
        {"Bolt load at flange", "Bolt lead at flange", 0}, {"Bolt Load at flange", "Bolt lead at flange", 0},
        {"Load-001", "LOAD-001", 1}, {"Load-001", "Load-002", 0}, {"Load[001", "Load{001", 0}, // eight units are compared at a time
        {String(u"a\0b"sv), String(u"A\0B"sv), 1}, {String(u"a\0b"sv), String(u"a\0c"sv), 0}, // U+0000 ends no text
        // Halves of pairs differ, although all are written as U+FFFD.
        {String(u"\xD800"), String(u"\xD801"), 0}, {String(u"\xDC00"), String(u"\xDC28"), 0},
        {String(u"\xDC00\xD801"), String(u"\xDC28\xD801"), 0}, {String(u"\xD801\xD801\xDC00"), String(u"\xD801\xD801\xDC28"), 1},
        {String(u"\xD801\xDC00\xDC00"), String(u"\xD801\xDC28\xDC28"), 0},
    };
    // clang-format on
    for (const auto& [a, b, expected] : rows) {
        EXPECT_EQ(a.Compare(b), expected) << a << " " << b;
        EXPECT_EQ(b.Compare(a), expected) << b << " " << a;
        EXPECT_EQ(a.HashIgnoringCase() == b.HashIgnoringCase(), expected != 0) << a << " " << b;
        EXPECT_EQ((kLong + a).Compare(kLong + b), expected) << a << " " << b;
        EXPECT_EQ((a + kLong).Compare(b + kLong), expected) << a << " " << b;
    }
}

TEST(UnicodeString, CompareReadsNoUnitAfterTheText) {
    String left("Pressure-pin.1");
    String right("Pressure-pin#2");
    for (const int length : {12, 0}) {
        left.Resize(length);
        right.Resize(length);
        EXPECT_EQ(left.Compare(right), 2);
    }
}

TEST(UnicodeString, SearchReturnsThePositionOrMinus1) {
    const std::tuple<const char*, const char*, int, int, int> rows[] = {
        {"", "a", 0, -1, -1},     {"Step-3", "Step-", 0, 0, 0}, {"1,2,3", ",", 0, 1, 3}, {"1,2,3", ",", 2, 3, 3},
        {"1,2,3", ",", 3, 3, 3},  {"1,2,3", ",", 4, -1, -1},    {"1,2,3", "", 0, 0, 5},  {"1,2,3", "", 2, 2, 5},
        {"1,2,3", "1", -7, 0, 0}, {"1,2,3", "3", 99, -1, -1},
    };
    for (const auto& [text, sub, start, forward, backward] : rows) {
        EXPECT_EQ(String(text).SearchSubString(sub, start, String::SearchForward), forward) << text << sub << start;
        EXPECT_EQ(String(text).SearchSubString(sub, start, String::SearchBackward), backward) << text << sub << start;
    }
}

TEST(UnicodeString, StripRemovesACharacterAtTheEndsOrEverywhere) {
    const char* stripped[] = {"a-b--", "--a-b", "a-b", "ab"};
    for (int mode = 1; mode <= 4; ++mode)
        EXPECT_EQ(Narrow(String("--a-b--").Strip(static_cast<String::ZFXStripMode>(mode), '-')), stripped[mode - 1]);
    EXPECT_EQ(Narrow(String(" \t a ").Strip(String::StripBoth)), "\t a");
    EXPECT_EQ(Narrow(String("---").Strip(String::StripBoth, '-')), "");
}

TEST(UnicodeString, PositionsOutsideTheTextAreClamped) {
    const std::tuple<int, int, const char*, const char*> rows[] = {
        {1, 2, "bc", "ad"}, {0, -1, "abcd", ""}, {2, -1, "cd", "ab"}, {2, 99, "cd", "ab"},
        {9, 1, "", "abcd"}, {-5, 1, "a", "bcd"}, {4, 0, "", "abcd"},  {1, 0, "", "abcd"},
    };
    for (const auto& [start, length, sub, removed] : rows) {
        String text("abcd");
        EXPECT_EQ(Narrow(text.SubString(start, length)), sub);
        text.Remove(start, length);
        EXPECT_EQ(Narrow(text), removed);
    }
    String cut(kLong);
    for (const auto& [size, left] : {std::pair(72, 72), {500, 72}, {-1, 72}, {0, 0}}) {
        cut.Resize(size);
        EXPECT_EQ(cut, Repeated('x', left)) << size;
    }
    EXPECT_EQ(String("ab")[7].ConvertToUC2Bytes(), 0);
    String pair("😀");
    pair.Resize(1);
    EXPECT_STREQ(pair, "\xEF\xBF\xBD"); // units after the end are not read
}

TEST(UnicodeString, ReplacesAllOrTheFirstOccurrence) {
    const std::tuple<const char*, const char*, const char*, const char*, const char*> rows[] = {
        {"a.b.c", ".", "-", "a-b-c", "a-b.c"}, {"aaa", "aa", "a", "aa", "aa"}, {"aaaa", "a", "aa", "aaaaaaaa", "aaaaa"},
        {"abc", "x", "y", "abc", "abc"},       {"abc", "", "y", "abc", "abc"}, {"a a", " ", "", "aa", "aa"},
        {"abab", "ab", "c", "cc", "cab"}, // the first occurrence is at 0
    };
    for (const auto& [text, old, with, expectedAll, expectedFirst] : rows) {
        String all(text);
        String first(text);
        all.ReplaceAll(old, with);
        EXPECT_EQ(first.ReplaceSubString(String(old), with), std::string_view(expectedFirst) == text ? 0 : 1);
        EXPECT_EQ(Narrow(all), expectedAll) << text;
        EXPECT_EQ(Narrow(first), expectedFirst) << text;
    }
    String inserted("ac");
    inserted.ReplaceSubString(1, 0, "b");
    EXPECT_EQ(Narrow(inserted), "abc");
}

TEST(UnicodeString, AnArgumentCanBeTheStringItself) {
    for (String text : {String("ab"), kLong}) {
        const String copy(text);
        text.Append(text).Append("|");
        text.ReplaceAll("|", text);
        EXPECT_EQ(text, copy + copy + copy + copy + "|");
        text.ReplaceSubString(text, text);
        text.ReplaceAll(text, text);
        text = text.ConvertToChar();
        String& same = text;
        text = same;
        text = std::move(same);
        EXPECT_EQ(text, copy + copy + copy + copy + "|");
    }
}

TEST(UnicodeString, ParsesAndFormatsDecimalNumbers) {
    constexpr int kMost = std::numeric_limits<int>::max();
    constexpr int kLeast = std::numeric_limits<int>::min();
    // clang-format off
    const std::tuple<const char*, int, int> rows[] = { // the number 77 is unchanged
        {"12", 1, 12}, {"abc", 0, 77}, {"", 0, 77}, {"2b", 1, 2}, {" \t\n5", 1, 5}, {"-4", 1, -4}, {"+4", 1, 4},
        {"--4", 0, 77}, {"-", 0, 77}, {"- 4", 0, 77}, {"007", 1, 7}, {"1 2", 1, 1}, {"2147483647", 1, kMost},
        {"2147483648", 0, 77}, {"-2147483648", 1, kLeast}, {"-2147483649", 0, 77}, {"99999999999999999999", 0, 77},
        {"00000000000000000000012", 1, 12}, {"１", 0, 77}, // a digit of another script
        {"\xC2\xA0" "5", 0, 77}, // white space of another kind
    };
    // clang-format on
    for (const auto& [text, result, expected] : rows) {
        int number = 77;
        EXPECT_EQ(String(text).ConvertToNum(&number, "%d"), result) << text;
        EXPECT_EQ(number, expected) << text;
    }
    int untouched = 77;
    EXPECT_EQ(String("12").ConvertToNum(&untouched, "%x") + untouched, 77); // any other format
    for (const int number : {0, 7, -5, kMost, kLeast}) {
        String text("before");
        text.BuildFromNum(number, "%d");
        EXPECT_EQ(Narrow(text), std::to_string(number));
    }
}

TEST(UnicodeChar, DigitsAreAsciiAndWhiteSpaceIsThatOfUnicode) {
    for (unsigned unit = 0; unit < 0x10000; ++unit) {
        const auto c = ZFXUnicodeChar::FromUnit(static_cast<char16_t>(unit));
        EXPECT_EQ(c.IsDigit() != 0, unit >= '0' && unit <= '9') << unit;
    }
    const std::pair<String, int> rows[] = {{"\t\r \xC2\x85\xC2\xA0\u1680\u2003\u2028\u202F\u205F\u3000", 1},
                                           {"a_-\u200B\u180E\uFEFF", 0}}; // the last three are invisible
    for (const auto& [text, isSpace] : rows)
        for (std::size_t i = 0; i < text.Units().size(); ++i)
            EXPECT_EQ(text[i].IsSpace(), isSpace) << i;
}

TEST(UnicodeChar, AssignsTheFirstCodeUnitOfANarrowText) {
    const std::pair<const char*, int> rows[] = {{"\\", '\\'},     {"é", 0xE9}, {"😀", 0xD83D},
                                                {"\x80", 0xFFFD}, {"", 0},     {nullptr, 0}};
    for (const auto& [text, unit] : rows) {
        ZFXUnicodeChar c('x');
        EXPECT_EQ((c = text).ConvertToUC2Bytes(), unit);
        EXPECT_EQ(c == ZFXUnicodeChar::FromUnit(static_cast<char16_t>(unit)), 1);
    }
}

} // namespace
