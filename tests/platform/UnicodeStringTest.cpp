#include "support/Results.h"

#include "text/ZFXUnicodeString.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

using namespace std::string_view_literals;
using String = ZFXUnicodeString;

namespace {

const String kLong = Repeated('x', 100); // beyond what the object holds itself

TEST(UnicodeString, CopiesOwnTheirText) {
    for (const String& original : {String(""), String("Step-1"), Repeated('a', 32), Repeated('a', 33), kLong}) {
        String copy(original);
        String assigned("something else that is longer than the inline storage of a string");
        assigned = original;
        String moved(std::move(copy));
        EXPECT_EQ(moved.Compare(original), 2);
        EXPECT_EQ(copy.GetLengthInChar(), 0); // NOLINT(bugprone-use-after-move): a moved-from string is empty
        moved.Append("!");
        assigned.ToUpper();
        copy = moved; // NOLINT(bugprone-use-after-move)
        EXPECT_EQ(original.GetLengthInChar() + 1, copy.GetLengthInChar());
        EXPECT_TRUE(assigned == original || assigned.Compare(original) == 1);
    }
}

TEST(UnicodeString, NarrowTextIsUtf8BothWays) {
    const std::tuple<const char*, int, const char*> rows[] = {
        {"abc", 3, "abc"},
        {"é", 1, "é"},
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
    const unsigned short lone[] = {u'a', 0xD800, u'b'};
    String half;
    half.BuildFromUCChar(lone, 3);
    EXPECT_EQ(half.GetLengthInChar(), 3);
    EXPECT_STREQ(half.ConvertToChar(), "a\xEF\xBF\xBD"
                                       "b");
    EXPECT_EQ(half[1].ConvertToUC2Bytes(), 0xD800);
    half.Append("c"); // the narrow form follows the text
    EXPECT_STREQ(half, "a\xEF\xBF\xBD"
                       "bc");
    for (void (String::*change)() : {&String::ToUpper, &String::ToLower}) {
        String text("aA");
        text.ConvertToChar();
        (text.*change)();
        EXPECT_EQ(text, text.ConvertToChar());
    }
    String moved("long before");
    moved.ConvertToChar();
    String source("new");
    source.ConvertToChar();
    moved = std::move(source);
    EXPECT_STREQ(moved, "new");
    EXPECT_STREQ(source, ""); // NOLINT(bugprone-use-after-move): a moved-from string is empty
    String& self = moved;
    moved = std::move(self);
    EXPECT_STREQ(moved, "new");
}

TEST(UnicodeString, CompareTellsIdenticalFromEqualApartFromCase) {
    // clang-format off
    const std::tuple<const char*, const char*, int> rows[] = {
        {"", "", 2}, {"Load-1", "Load-1", 2}, {"Load-1", "LOAD-1", 1}, {"Load-1", "Load-2", 0},
        {"Load-1", "Load-10", 0}, {"a", "", 0}, {"@", "`", 0}, {"[", "{", 0}, {"É", "é", 1}, {"Σ", "ς", 1},
        {"ß", "ẞ", 1}, {"ss", "ß", 0},
        {"\u212A", "k", 1}, // Kelvin sign
        {"ſ", "S", 1},      // long s
        {"𐐀x", "𐐨X", 1}, {"𐐀", "𐐩", 0}, {"𐐧", "𐑏", 1}, {"𐐧x", "𐑐x", 0}, {"İ", "i", 0}, {"日", "日", 2},
        {"\xF1\x80\x80\x80", "\xF1\x80\x80\x81", 0},
        {"Bolt load at flange", "Bolt lead at flange", 0}, {"Bolt Load at flange", "Bolt lead at flange", 0},
        {"Load-001", "LOAD-001", 1}, {"Load-001", "Load-002", 0}, {"Load[001", "Load{001", 0}, // eight are read at a time
    };
    // clang-format on
    for (const auto& [a, b, expected] : rows) {
        EXPECT_EQ(String(a).Compare(b), expected) << a << " " << b;
        EXPECT_EQ(String(b).Compare(a), expected) << b << " " << a;
        const String longA = kLong + a;
        EXPECT_EQ(longA.Compare(kLong + b), expected);
    }
    EXPECT_EQ(String(u"a\0b"sv).Compare(String(u"A\0B"sv)), 1); // U+0000 ends no text
    EXPECT_EQ(String(u"a\0b"sv).Compare(String(u"a\0c"sv)), 0);
    EXPECT_EQ(String(u"\xD800").Compare(String(u"\xD801")), 0); // halves differ, though both are written U+FFFD
    String cut("abc");
    cut.Remove(0, 3);
    EXPECT_EQ(cut.Compare(""), 2); // what stands in the storage of an empty text means nothing
}

TEST(UnicodeString, SearchesStripsAndCuts) {
    const auto forward = String::SearchForward;
    const auto backward = String::SearchBackward;
    EXPECT_EQ(String("").SearchSubString("a", 0, forward), -1);
    EXPECT_EQ(String("Step-3").SearchSubString("Step-", 0, forward), 0);
    EXPECT_EQ(String("1,2,3").SearchSubString(",", 0, backward), 3);
    EXPECT_EQ(String("1,2,3").SearchSubString(",", 0, forward), 1);
    EXPECT_EQ(String("1,2,3").SearchSubString("", 0, forward), 0);
    EXPECT_EQ(String("1,2,3").SearchSubString("", 0, backward), 5);

    const char* stripped[] = {"a-b--", "--a-b", "a-b", "ab"};
    for (int mode = 1; mode <= 4; ++mode)
        EXPECT_EQ(Text(String("--a-b--").Strip(static_cast<String::ZFXStripMode>(mode), '-')), stripped[mode - 1]);
    EXPECT_EQ(Text(String(" \t a ").Strip(String::StripBoth)), "\t a");
    EXPECT_EQ(Text(String("---").Strip(String::StripBoth, '-')), "");

    const std::tuple<int, int, const char*, const char*> rows[] = {
        {1, 2, "bc", "ad"}, {0, -1, "abcd", ""}, {2, -1, "cd", "ab"}, {2, 99, "cd", "ab"},
        {9, 1, "", "abcd"}, {-5, 1, "a", "bcd"}, {4, 0, "", "abcd"},  {1, 0, "", "abcd"},
    };
    for (const auto& [start, length, sub, removed] : rows) {
        String text("abcd");
        EXPECT_EQ(Text(text.SubString(start, length)), sub);
        text.Remove(start, length);
        EXPECT_EQ(Text(text), removed);
    }
    String cut(kLong);
    cut.Resize(72);
    EXPECT_EQ(cut, Repeated('x', 72));
    cut.Resize(500);
    EXPECT_EQ(cut.GetLengthInChar(), 72);
    cut.Resize(-1);
    EXPECT_EQ(cut.GetLengthInChar(), 72);
    cut.Resize(0);
    EXPECT_TRUE(cut.IsNull());
    EXPECT_EQ(String("ab")[7].ConvertToUC2Bytes(), 0);
    String pair("😀");
    pair.Resize(1);
    EXPECT_STREQ(pair, "\xEF\xBF\xBD"); // what stood behind the end is not read
}

TEST(UnicodeString, ReplacesAlsoWithItself) {
    const std::tuple<const char*, const char*, const char*, const char*, const char*> rows[] = {
        {"a.b.c", ".", "-", "a-b-c", "a-b.c"}, {"aaa", "aa", "a", "aa", "aa"}, {"aaaa", "a", "aa", "aaaaaaaa", "aaaaa"},
        {"abc", "x", "y", "abc", "abc"},       {"abc", "", "y", "abc", "abc"}, {"a a", " ", "", "aa", "aa"},
    };
    for (const auto& [text, old, with, expectedAll, expectedFirst] : rows) {
        String all(text);
        String first(text);
        all.ReplaceAll(old, with);
        EXPECT_EQ(first.ReplaceSubString(String(old), with), std::string_view(expectedFirst) == text ? 0 : 1);
        EXPECT_EQ(Text(all), expectedAll) << text;
        EXPECT_EQ(Text(first), expectedFirst) << text;
    }
    String inserted("ac");
    inserted.ReplaceSubString(1, 0, "b");
    EXPECT_EQ(Text(inserted), "abc");
    for (String text : {String("ab"), kLong}) {
        const String copy(text);
        text.Append(text).Append("|");
        EXPECT_EQ(text, copy + copy + "|");
        text.ReplaceAll("|", text);
        EXPECT_EQ(text, copy + copy + copy + copy + "|");
        text.ReplaceSubString(text, text);
        text.ReplaceAll(text, text);
        EXPECT_EQ(text, copy + copy + copy + copy + "|");
        text = text.ConvertToChar();
        const String& same = text;
        text = same;
        EXPECT_EQ(text, copy + copy + copy + copy + "|");
    }
}

TEST(UnicodeString, ReadsAndWritesDecimalNumbers) {
    constexpr int kMost = std::numeric_limits<int>::max();
    constexpr int kLeast = std::numeric_limits<int>::min();
    struct Row {
        const char* text;
        int result;
        int number; // 77 when the integer must stay as it was
    };
    // clang-format off
    const Row rows[] = {
        {"12", 1, 12}, {"abc", 0, 77}, {"", 0, 77}, {"2b", 1, 2}, {" \t\n5", 1, 5}, {"-4", 1, -4}, {"+4", 1, 4},
        {"--4", 0, 77}, {"-", 0, 77}, {"- 4", 0, 77}, {"007", 1, 7}, {"1 2", 1, 1}, {"2147483647", 1, kMost},
        {"2147483648", 0, 77}, {"-2147483648", 1, kLeast}, {"-2147483649", 0, 77}, {"99999999999999999999", 0, 77},
        {"00000000000000000000012", 1, 12}, {"１", 0, 77}, // a digit of another script
        {"\xC2\xA0" "5", 0, 77}, // white space of another kind
    };
    // clang-format on
    for (const Row& row : rows) {
        int number = 77;
        EXPECT_EQ(String(row.text).ConvertToNum(&number, "%d"), row.result) << row.text;
        EXPECT_EQ(number, row.number) << row.text;
    }
    int untouched = 77;
    EXPECT_EQ(String("12").ConvertToNum(&untouched, "%x") + untouched, 77); // no other format is known
    for (const int number : {0, 7, -5, kMost, kLeast}) {
        String text("before");
        text.BuildFromNum(number, "%d");
        EXPECT_EQ(Text(text), std::to_string(number));
    }
}

TEST(UnicodeString, ChangesLettersOfAllScripts) {
    String text("aZ é ß ÿ ǆ 𐐨𐑏𐑐 日 ω");
    text.ToUpper();
    EXPECT_EQ(Text(text), "AZ É ß Ÿ Ǆ 𐐀𐐧𐑐 日 Ω");
    text.ToLower();
    EXPECT_EQ(Text(text), "az é ß ÿ ǆ 𐐨𐑏𐑐 日 ω");
}

TEST(UnicodeChar, KnowsDigitsAndWhiteSpace) {
    for (unsigned unit = 0; unit < 0x10000; ++unit) {
        const auto c = ZFXUnicodeChar::FromUnit(static_cast<char16_t>(unit));
        EXPECT_EQ(c.IsDigit() != 0, unit >= '0' && unit <= '9') << unit;
    }
    const String white("\t \xC2\x85\xC2\xA0\u1680\u2003\u2028\u202F\u205F\u3000");
    for (std::size_t i = 0; i < white.Units().size(); ++i)
        EXPECT_TRUE(white[i].IsSpace()) << i;
    const String black("a_-\u200B\u180E\uFEFF"); // the last three only look empty
    for (std::size_t i = 0; i < black.Units().size(); ++i)
        EXPECT_FALSE(black[i].IsSpace()) << i;
    ZFXUnicodeChar c('x');
    EXPECT_EQ((c = "\\") == ZFXUnicodeChar('\\'), 1);
    EXPECT_EQ((c = "é").ConvertToUC2Bytes(), 0xE9);
    EXPECT_EQ((c = "").ConvertToUC2Bytes(), 0);
}

} // namespace
