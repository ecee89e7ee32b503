#include "QVRNameUtil.h"

#include "support/Results.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

TEST(CharacterSets, OffendingUnitsAreListedForTheUser) {
    struct Row {
        const char* name;
        const char* before; // what the list holds already
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
        {"😀", "", "\xEF\xBF\xBD  \xEF\xBF\xBD ", "\xEF\xBF\xBD  \xEF\xBF\xBD "}, // both halves, each by itself
    };
    for (const Row& row : rows) {
        ZFXUnicodeString wide(row.before);
        ZFXUnicodeString high(row.before);
        const HRESULT wideCode = QVRNameUtil::DoesNameContainDoubleByteChar(row.name, wide);
        const HRESULT highCode = QVRNameUtil::DoesNameContainSignedChar(row.name, high);
        EXPECT_EQ(Text(wide), row.above255) << row.name;
        EXPECT_EQ(Text(high), row.above127) << row.name;
        EXPECT_EQ(ResultText(wideCode), wide == row.before ? "S_OK" : "DoubleByteCharErr_01") << row.name;
        EXPECT_EQ(ResultText(highCode), high == row.before ? "S_OK" : "DoubleByteCharErr_01") << row.name;
        if (const ZFXError* error = ZFXError::ZFXGetLastError(wideCode, nullptr)) {
            ASSERT_EQ(error->DiagnosticParameters().size(), 1U);
            EXPECT_EQ(error->DiagnosticParameters()[0], wide);
        }
    }
    ZFXUnicodeString both("aα");
    QVRNameUtil::DoesNameContainDoubleByteChar(both, both); // the list may be the name
    EXPECT_EQ(Text(both), "aαα ");
}

TEST(CharacterSets, NamesAreStrippedAndQuoted) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"my job (1).inp", "myjob1.inp", "\"my job (1).inp\""},
        {" $*?,#!&~()[]{}|:;'`/><", "", "\" $*?,#!&~()[]{}|:;'`/><\""},
        {"a\"b\\c.d", "a\"b\\c.d", "a\"b\\c.d"},
        {"Step-1", "Step-1", "Step-1"},
        {"\"half quoted", "\"halfquoted", "\"half quoted"},
        {"x \"y", "x\"y", "\"x \"y\""},
        {"", "", ""},
    };
    for (const auto& [name, expectedStripped, expectedQuoted] : rows) {
        ZFXUnicodeString stripped(name);
        ZFXUnicodeString quoted(name);
        EXPECT_EQ(QVRNameUtil::StripIllegalCharsFromFileName(stripped), S_OK);
        QVRNameUtil::QuoteIfNeeded(quoted);
        EXPECT_EQ(Text(stripped), expectedStripped);
        EXPECT_EQ(Text(quoted), expectedQuoted);
    }
}

TEST(CharacterSets, PadStringsJoinsWhatItWasGiven) {
    ZFXUnicodeString name("Mesh 1");
    ZFXUnicodeString suffix("a b");
    ZFXUnicodeString prefix("P ");
    EXPECT_EQ(QVRNameUtil::PadStrings(name, suffix, prefix), S_OK);
    EXPECT_EQ(Text(name) + "|" + Text(suffix) + "|" + Text(prefix), "PMesh1_ab|ab|P ");

    name = Repeated('n', 85);
    QVRNameUtil::PadStrings(name, suffix, prefix);
    EXPECT_EQ(name, ZFXUnicodeString("P") + Repeated('n', 79));

    const unsigned short half[] = {u'a', 0xD800};
    suffix.BuildFromUCChar(half, 2);
    name = "n";
    QVRNameUtil::PadStrings(name, suffix, prefix);
    EXPECT_EQ(Text(name), "Pn_a\xEF\xBF\xBD"); // by way of the narrow form

    ZFXUnicodeString all("a (b)");
    QVRNameUtil::PadStrings(all, all, all);
    EXPECT_EQ(Text(all), "a(b)a(b)_ab");
}

} // namespace
