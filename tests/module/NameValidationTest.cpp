#include "QVRNameUtil.h"

#include "support/Results.h"

#include <gtest/gtest.h>

using namespace std::string_view_literals;

namespace {

TEST(NameValidation, TheFirstRuleThatFailsDecides) {
    struct Row {
        ZFXUnicodeString name;
        const char* checked;   // with the leading character
        const char* unchecked; // without
        const char* asFile;
        bool quiet; // passes the quiet check
    };
    const char* const length1 = "NameLengthERR_01";
    const char* const char1 = "IllegalCharERR_01 -100";
    const char* const char2 = "IllegalCharERR_02 -100";
    // clang-format off
    const Row rows[] = {
        {"", "NameLengthERR_02", "NameLengthERR_02", "S_OK", true}, {"a", "S_OK", "S_OK", "S_OK", true},
        {Repeated('a', 72), "S_OK", "S_OK", "S_OK", true}, {Repeated('a', 73), length1, length1, "S_OK", true},
        {Repeated('a', 72) + ".", length1, length1, char1, true},
        {Repeated('a', 200), length1, length1, "S_OK", true}, {"1abc", "LeadingDigitERR_01", "S_OK", "S_OK", true},
        {"1.c", "LeadingDigitERR_01", char1, char1, true}, {"abc1", "S_OK", "S_OK", "S_OK", true},
        {"_x", "S_OK", "S_OK", "S_OK", true}, {" x", "S_OK", "S_OK", char2, true},
        {"１", "S_OK", "S_OK", "S_OK", true}, // a digit of another script leads
        {"Step.1", char1, char1, char1, true}, {"a\"b", char1, char1, char1, true},
        {"dir\\job", char1, char1, "S_OK", true}, {"Static Step-1", "S_OK", "S_OK", char2, true},
        {"a.b c", char1, char1, char1, true}, // reserved characters are examined first
        {"c a.b", char1, char1, char1, true}, {"a/b(c)*", "S_OK", "S_OK", char2, false},
        {"日本", "S_OK", "S_OK", "S_OK", true}, {"    ", "S_OK", "S_OK", char2, true},
        {"____", "S_OK", "S_OK", "S_OK", true}, {ZFXUnicodeString(u"\xD800"), "S_OK", "S_OK", "S_OK", true},
        {ZFXUnicodeString(u"a\0."sv), char1, char1, char1, true}, // U+0000 ends no text
        {Repeated('.', kMillion), length1, length1, char1, true}, {Repeated('/', kMillion), length1, length1, char2, false},
    };
    // clang-format on
    for (Row row : rows) {
        const ZFXUnicodeString before(row.name);
        EXPECT_EQ(ResultText(QVRNameUtil::IsNameValid(row.name, 1)), row.checked) << row.name;
        EXPECT_EQ(ResultText(QVRNameUtil::IsNameValid(row.name, 0)), row.unchecked) << row.name;
        EXPECT_EQ(ResultText(QVRNameUtil::IsFileNameValid(row.name)), row.asFile) << row.name;
        EXPECT_EQ(ResultText(QVRNameUtil::CheckForIllegalCharacters(row.name)), row.quiet ? "S_OK" : "E_FAIL")
            << row.name;
        EXPECT_EQ(row.name, before);
    }
}

TEST(NameValidation, EachCharacterOfTheSetsCounts) {
    for (int c = 1; c < 128; ++c) {
        ZFXUnicodeString name = ZFXUnicodeString("a") + ZFXUnicodeString(static_cast<char>(c), 1);
        const bool reserved = std::strchr("\".\\", c) != nullptr;
        const bool illegal = std::strchr("$*?,#!&~()[]{}|:;'`/><", c) != nullptr;
        EXPECT_EQ(QVRNameUtil::IsNameValid(name, 1) < 0, reserved) << c;
        EXPECT_EQ(QVRNameUtil::CheckForIllegalCharacters(name) < 0, illegal) << c;
        EXPECT_EQ(QVRNameUtil::IsFileNameValid(name) < 0, illegal || c == ' ' || c == '"' || c == '.') << c;
    }
}

TEST(NameValidation, ARefusalSaysWhereItWasRaised) {
    ZFXUnicodeString empty;
    ZFXError* error = ZFXError::ZFXGetLastError(QVRNameUtil::IsNameValid(empty, 0), nullptr);
    ASSERT_NE(error, nullptr);
    EXPECT_STREQ(error->GetMsgCatalog(), "QVRNameUtility");
    EXPECT_STREQ(error->GetSourceFileName(), "QVRNameUtil/NameValidation.cpp"); // on every machine
    EXPECT_GT(error->GetSourceLineNumber(), 0);
    EXPECT_EQ(error->GetInformationOnErrorType(), 2);
    EXPECT_EQ(error->GetReturnCode(), 0);
    EXPECT_STREQ(error->IsA(), "ZFXInputError");
}

} // namespace
