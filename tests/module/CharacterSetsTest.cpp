#include "QVRNameUtil.h"

#include "support/Results.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

TEST(CharacterSets, AppendEveryForbiddenCharacterToTheList) {
    // The name, the list before the call, and the list with the characters above U+00FF and above U+007F
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"", "x", "x", "x"},
        {"Step-1", "", "", ""},
        {"aαbα", "x", "xα  α ", "xα  α "},
        {"\u00FF\u0100", "", "\u0100 ", "\u00FF  \u0100 "},
        {"\u007F\u0080", "", "", "\u0080 "},
        {"😀", "", "\uFFFD  \uFFFD ", "\uFFFD  \uFFFD "}, // each surrogate counts as one unit
    };
    for (const auto& [name, before, above255, above127] : rows)
        for (const auto& [operation, expected] : {std::pair(&QVRNameUtil::DoesNameContainDoubleByteChar, above255),
                                                  std::pair(&QVRNameUtil::DoesNameContainSignedChar, above127)}) {
            ZFXUnicodeString offending(before);
            const HRESULT code = operation(name, offending);
            EXPECT_EQ(Narrow(offending), expected) << name;
            EXPECT_EQ(ResultText(code), offending == before ? "S_OK" : "DoubleByteCharErr_01") << name;
            if (const ZFXError* error = ZFXError::ZFXGetLastError(code, nullptr)) {
                EXPECT_EQ(error->DiagnosticParameters(), std::vector{offending}) << name;
            }
        }
    ZFXUnicodeString both("aα"); // one object for the name and the list
    QVRNameUtil::DoesNameContainDoubleByteChar(both, both);
    EXPECT_EQ(Narrow(both), "aαα ");
}

TEST(CharacterSets, StripAndQuoteFileNames) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"my job (1).inp", "myjob1.inp", "\"my job (1).inp\""},
        {" $*?,#!&~()[]{}|:;'`/><", "", "\" $*?,#!&~()[]{}|:;'`/><\""},
        {"a\"b\\c.d", "a\"b\\c.d", "a\"b\\c.d"},
        {"\"half quoted", "\"halfquoted", "\"half quoted"},
        {"x \"y", "x\"y", "\"x \"y\""},
        {"", "", ""},
    };
    for (const auto& [name, expectedStripped, expectedQuoted] : rows) {
        ZFXUnicodeString stripped(name);
        ZFXUnicodeString quoted(name);
        EXPECT_EQ(QVRNameUtil::StripIllegalCharsFromFileName(stripped), S_OK);
        QVRNameUtil::QuoteIfNeeded(quoted);
        EXPECT_EQ(Narrow(stripped), expectedStripped) << name;
        EXPECT_EQ(Narrow(quoted), expectedQuoted) << name;
    }
}

TEST(CharacterSets, PadStringsJoinsPrefixNameAndSuffix) {
    const ZFXUnicodeString surrogate(u"\xD800");
    const std::tuple<ZFXUnicodeString, ZFXUnicodeString, ZFXUnicodeString, ZFXUnicodeString> rows[] = {
        {"Mesh 1", "a b", "PMesh1_ab", "ab"},
        {Repeated('n', 80), "ab", ZFXUnicodeString("P") + Repeated('n', 79), "ab"},
        {"n", surrogate, "Pn_\uFFFD", surrogate}, // converted through UTF-8
    };
    for (auto [name, suffix, expectedName, expectedSuffix] : rows) {
        ZFXUnicodeString prefix("P ");
        EXPECT_EQ(QVRNameUtil::PadStrings(name, suffix, prefix), S_OK);
        EXPECT_EQ(std::tie(name, suffix, prefix), std::tuple(expectedName, expectedSuffix, "P "));
    }
    ZFXUnicodeString all("a (b)"); // one object for all three
    QVRNameUtil::PadStrings(all, all, all);
    EXPECT_EQ(all, "a(b)a(b)_ab");
}

} // namespace
