#include "QVRNameUtil.h"

#include "support/Results.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace std::string_view_literals;

namespace {

TEST(NameValidation, FirstViolatedRuleDeterminesTheError) {
    const char* const tooLong = "NameLengthERR_01";
    const char* const empty = "NameLengthERR_02";
    const char* const digit = "LeadingDigitERR_01";
    const char* const reserved = "IllegalCharERR_01 -100";
    const char* const illegal = "IllegalCharERR_02 -100";
    // The name, and the results of IsNameValid with and without the rule for the first character, of IsFileNameValid
    // and of CheckForIllegalCharacters
    // clang-format off
    const std::tuple<ZFXUnicodeString, const char*, const char*, const char*, const char*> rows[] = {
        {"", empty, empty, "S_OK", "S_OK"}, {Repeated('a', 72), "S_OK", "S_OK", "S_OK", "S_OK"},
        {Repeated('a', 72) + ".", tooLong, tooLong, reserved, "S_OK"}, {"1abc", digit, "S_OK", "S_OK", "S_OK"},
        {"1.c", digit, reserved, reserved, "S_OK"}, {"abc1", "S_OK", "S_OK", "S_OK", "S_OK"},
        {"１", "S_OK", "S_OK", "S_OK", "S_OK"}, // a digit of another script
        {"c a.b", reserved, reserved, reserved, "S_OK"}, {"a/b(c)*", "S_OK", "S_OK", illegal, "E_FAIL"},
        {"    ", "S_OK", "S_OK", illegal, "S_OK"}, {ZFXUnicodeString(u"\xD800"), "S_OK", "S_OK", "S_OK", "S_OK"},
        {ZFXUnicodeString(u"a\0."sv), reserved, reserved, reserved, "S_OK"}, // U+0000 does not end a text
        {Repeated('.', kMillion), tooLong, tooLong, reserved, "S_OK"},
        {Repeated('/', kMillion), tooLong, tooLong, illegal, "E_FAIL"},
    };
    // clang-format on
    for (auto [name, withStart, withoutStart, asFile, quiet] : rows) {
        const ZFXUnicodeString before(name);
        EXPECT_EQ(ResultText(QVRNameUtil::IsNameValid(name, 1)), withStart) << before;
        EXPECT_EQ(ResultText(QVRNameUtil::IsNameValid(name, 0)), withoutStart) << before;
        EXPECT_EQ(ResultText(QVRNameUtil::IsFileNameValid(name)), asFile) << before;
        EXPECT_EQ(ResultText(QVRNameUtil::CheckForIllegalCharacters(name)), quiet) << before;
        EXPECT_EQ(name, before) << "a check changed the name";
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
}

} // namespace
