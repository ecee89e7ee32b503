#include "QVRNameUtil.h"

#include "support/Results.h"

#include <gtest/gtest.h>

using namespace std::string_view_literals;

namespace {

TEST(NameValidation, FirstViolatedRuleDeterminesTheError) {
    struct Row {
        ZFXUnicodeString name;
        const char* withStart;    // IsNameValid with the rule for the first character
        const char* withoutStart; // IsNameValid without that rule
        const char* asFile;       // IsFileNameValid
        const char* quiet;        // CheckForIllegalCharacters
    };
    const char* const tooLong = "NameLengthERR_01";
    const char* const empty = "NameLengthERR_02";
    const char* const digit = "LeadingDigitERR_01";
    const char* const reserved = "IllegalCharERR_01 -100";
    const char* const illegal = "IllegalCharERR_02 -100";
    // clang-format off
    const Row rows[] = {
        {"", empty, empty, "S_OK", "S_OK"}, {"a", "S_OK", "S_OK", "S_OK", "S_OK"},
        {Repeated('a', 72), "S_OK", "S_OK", "S_OK", "S_OK"}, {Repeated('a', 73), tooLong, tooLong, "S_OK", "S_OK"},
        {Repeated('a', 72) + ".", tooLong, tooLong, reserved, "S_OK"},
        {"1abc", digit, "S_OK", "S_OK", "S_OK"}, {"1.c", digit, reserved, reserved, "S_OK"},
        {"abc1", "S_OK", "S_OK", "S_OK", "S_OK"}, {"_x", "S_OK", "S_OK", "S_OK", "S_OK"},
        {" x", "S_OK", "S_OK", illegal, "S_OK"}, {"１", "S_OK", "S_OK", "S_OK", "S_OK"}, // a digit of another script
        {"Step.1", reserved, reserved, reserved, "S_OK"}, {"a\"b", reserved, reserved, reserved, "S_OK"},
        {"dir\\job", reserved, reserved, "S_OK", "S_OK"}, {"Static Step-1", "S_OK", "S_OK", illegal, "S_OK"},
        {"a.b c", reserved, reserved, reserved, "S_OK"}, {"c a.b", reserved, reserved, reserved, "S_OK"},
        {"a/b(c)*", "S_OK", "S_OK", illegal, "E_FAIL"}, {"日本", "S_OK", "S_OK", "S_OK", "S_OK"},
        {"    ", "S_OK", "S_OK", illegal, "S_OK"}, {"____", "S_OK", "S_OK", "S_OK", "S_OK"},
        {ZFXUnicodeString(u"\xD800"), "S_OK", "S_OK", "S_OK", "S_OK"},
        {ZFXUnicodeString(u"a\0."sv), reserved, reserved, reserved, "S_OK"}, // U+0000 does not end a text
        {Repeated('.', kMillion), tooLong, tooLong, reserved, "S_OK"},
        {Repeated('/', kMillion), tooLong, tooLong, illegal, "E_FAIL"},
    };
    // clang-format on
    for (Row row : rows) {
        const ZFXUnicodeString before(row.name);
        EXPECT_EQ(ResultText(QVRNameUtil::IsNameValid(row.name, 1)), row.withStart) << row.name;
        EXPECT_EQ(ResultText(QVRNameUtil::IsNameValid(row.name, 0)), row.withoutStart) << row.name;
        EXPECT_EQ(ResultText(QVRNameUtil::IsFileNameValid(row.name)), row.asFile) << row.name;
        EXPECT_EQ(ResultText(QVRNameUtil::CheckForIllegalCharacters(row.name)), row.quiet) << row.name;
        EXPECT_EQ(row.name, before) << "a check changed the name";
    }
}

TEST(NameValidation, RejectsExactlyTheListedCharacters) {
    for (int c = 1; c < 128; ++c) {
        ZFXUnicodeString name = ZFXUnicodeString("a") + ZFXUnicodeString(static_cast<char>(c), 1);
        const bool isReserved = std::strchr("\".\\", c) != nullptr;
        const bool isIllegal = std::strchr("$*?,#!&~()[]{}|:;'`/><", c) != nullptr;
        EXPECT_EQ(QVRNameUtil::IsNameValid(name, 1) < 0, isReserved) << name;
        EXPECT_EQ(QVRNameUtil::CheckForIllegalCharacters(name) < 0, isIllegal) << name;
        EXPECT_EQ(QVRNameUtil::IsFileNameValid(name) < 0, isIllegal || c == ' ' || c == '"' || c == '.') << name;
    }
}

TEST(NameValidation, ErrorRecordsFileAndLine) {
    ZFXUnicodeString empty;
    ZFXError* error = ZFXError::ZFXGetLastError(QVRNameUtil::IsNameValid(empty, 0), nullptr);
    ASSERT_NE(error, nullptr);
    EXPECT_STREQ(error->GetMsgCatalog(), "QVRNameUtility");
    EXPECT_STREQ(error->GetSourceFileName(), "QVRNameUtil/NameValidation.cpp"); // without the folder of the build
    EXPECT_GT(error->GetSourceLineNumber(), 0);
    EXPECT_EQ(error->GetInformationOnErrorType(), 2);
    EXPECT_STREQ(error->IsA(), "ZFXInputError");
}

} // namespace
