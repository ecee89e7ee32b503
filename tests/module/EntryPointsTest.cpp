#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

#include <tuple>

namespace {

class EntryPointsTest : public DocumentTest {
protected:
    MemoryFeature set = document.Model().Set("S");
    MemoryFeature feature = set.Feature("T", "Current");
    MemoryFeature other = set.Feature("T", "Taken");
};

TEST_F(EntryPointsTest, UniquenessIsJudgedBeforeTheText) {
    const char* const duplicate = "DuplicateNameERR_02 -100";
    const char* const char1 = "IllegalCharERR_01 -100";
    const char* const char2 = "IllegalCharERR_02 -100";
    // clang-format off
    const std::tuple<const char*, ZFXUnicodeString, const char*, const char*> rows[] = {
        {"Current", "New", "S_OK", "S_OK"},
        {"Current", "taken", duplicate, "S_OK"}, // the file check compares the current name
        {"TAKEN", "New", "S_OK", duplicate}, {"TAKEN", "", duplicate, duplicate},
        {"", "", "NameLengthERR_02", "S_OK"}, {"1.", "", "LeadingDigitERR_01", char1},
        {"Current", Repeated('x', 72), "S_OK", "S_OK"}, {"Current", Repeated('x', 73), "NameLengthERR_01", "S_OK"},
        {"Current", "1st", "LeadingDigitERR_01", "S_OK"}, {"Current", "1.日", "LeadingDigitERR_01", char1},
        {"Current", "a.日", char1, char1}, {"Current", "a b日", "DoubleByteCharErr_01", char2},
        {"Current", "Träger", "S_OK", "S_OK"},
        {"Current", ZFXUnicodeString(u"\xDC00"), "DoubleByteCharErr_01", "S_OK"},
        {"____", "    ", "S_OK", char2}, {"Current", Repeated('1', kMillion), "NameLengthERR_01", "S_OK"},
    };
    // clang-format on
    for (const auto& [current, name, check, file] : rows) {
        feature.Alias(current);
        ZFXISpecObject_var handle(feature);
        EXPECT_EQ(ResultText(QVRNameUtil::CheckName(handle, name, 1)), check) << name;
        EXPECT_EQ(ResultText(QVRNameUtil::CheckFileName(handle, name)), file) << name;
    }
    ZFXISpecObject_var handle(feature.Alias("Current"));
    EXPECT_EQ(ResultText(QVRNameUtil::CheckName(handle, "1st", 0)), "S_OK");
    EXPECT_EQ(ResultText(QVRNameUtil::CheckName(handle, "1.", 0)), char1);
    other.Alias(Repeated('y', 80)); // clashes and is too long: the clash is told
    EXPECT_EQ(ResultText(QVRNameUtil::CheckName(handle, Repeated('y', 80), 1)), duplicate);
    for (ZFXISpecObject_var nameless : {ZFXISpecObject_var(feature.Without(IID_ZFXIAlias)), ZFXISpecObject_var()}) {
        EXPECT_EQ(ResultText(QVRNameUtil::CheckName(nameless, "x", 1)), "ZFXIAliasERR_01");
        EXPECT_EQ(ResultText(QVRNameUtil::CheckFileName(nameless, "x")), "ZFXIAliasERR_01");
    }
}

TEST_F(EntryPointsTest, AProposalNeedsAFeatureAndACase) {
    MemoryFeature step = document.Case("Static").Step("T", "Step-1");
    step = document.Case("Second").Step("T", "Step-4");
    ZFXISpecObject_var handle(step);
    ZFXISpecObject_var nothing;
    ZFXISamAnalysisCase_var none;
    ZFXUnicodeString name("Step-");
    QVRNameUtil::GetUniqueName(name, nothing, none);
    EXPECT_EQ(Text(name), "Step-");
    QVRNameUtil::GetUniqueName(name, handle, none); // in the current case, whose only step is the first child
    EXPECT_EQ(Text(name), "Step-1");
    EXPECT_EQ(none, nullptr);
}

} // namespace
