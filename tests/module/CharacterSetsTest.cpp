#include "QVRNameUtil.h"

#include "support/Results.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

TEST(CharacterSets, AppendEveryForbiddenCharacterToTheList) {
    struct Row {
        const char* name;
        const char* before; // the text that the list already contains
        const char* above255;
        const char* above127;
    };
    const Row rows[] = {
        {"", "x", "x", "x"},
        {"Step-1", "", "", ""},
        {"Träger", "", "", "ä "},
        {"αβ", "", "α  β ", "α  β "},
        {"aαbα", "x", "xα  α ", "xα  α "},
        {"\u00FF\u0100", "", "\u0100 ", "\u00FF  \u0100 "},
        {"\u007F\u0080", "", "", "\u0080 "},
        {"😀", "", "\xEF\xBF\xBD  \xEF\xBF\xBD ", "\xEF\xBF\xBD  \xEF\xBF\xBD "}, // each surrogate counts as one unit
    };
    for (const Row& row : rows)
        for (const auto& [operation, expected] : {std::pair(&QVRNameUtil::DoesNameContainDoubleByteChar, row.above255),
                                                  std::pair(&QVRNameUtil::DoesNameContainSignedChar, row.above127)}) {
            ZFXUnicodeString offending(row.before);
            const HRESULT code = operation(row.name, offending);
            EXPECT_EQ(Narrow(offending), expected) << row.name;
            EXPECT_EQ(ResultText(code), offending == row.before ? "S_OK" : "DoubleByteCharErr_01") << row.name;
            if (const ZFXError* error = ZFXError::ZFXGetLastError(code, nullptr)) {
                EXPECT_EQ(error->DiagnosticParameters(), std::vector{offending}) << row.name;
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
    const std::tuple<ZFXUnicodeString, ZFXUnicodeString, const char*, ZFXUnicodeString> rows[] = {
        {"Mesh 1", "a b", "PMesh1_ab", "ab"},
        {Repeated('n', 80), "ab", "Pnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn",
         "ab"},
        {"n", ZFXUnicodeString(u"\xD800"), "Pn_\uFFFD", ZFXUnicodeString(u"\xD800")}, // converted through UTF-8
    };
    for (auto [name, suffix, expectedName, expectedSuffix] : rows) {
        ZFXUnicodeString prefix("P ");
        EXPECT_EQ(QVRNameUtil::PadStrings(name, suffix, prefix), S_OK);
        EXPECT_EQ(name, expectedName);
        EXPECT_EQ(suffix, expectedSuffix);
        EXPECT_EQ(prefix, "P ");
    }
    ZFXUnicodeString all("a (b)"); // one object for all three
    QVRNameUtil::PadStrings(all, all, all);
    EXPECT_EQ(all, "a(b)a(b)_ab");
}

} // namespace
