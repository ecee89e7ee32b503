#include "support/ScopeTest.h"

#include <functional>
#include <tuple>

namespace {

struct EntryPointsTest : ScopeTest {
    static std::string CheckName(MemoryFeature feature, const ZFXUnicodeString& name, unsigned char checkStart) {
        return Call(feature, name,
                    [&](auto& handle, auto& text) { return QVRNameUtil::CheckName(handle, text, checkStart); });
    }

    MemoryFeature set = document.Model().Set("S");
    MemoryFeature feature = set.Feature("T", "Current");
    MemoryFeature other = set.Feature("T", "Taken");
};

TEST_F(EntryPointsTest, UniquenessIsCheckedBeforeTheText) {
    const char* const reserved = "IllegalCharERR_01 -100";
    const char* const illegal = "IllegalCharERR_02 -100";
    // The current name, the new name, and the results of CheckName and CheckFileName, which compares the current name
    // clang-format off
    const std::tuple<const char*, ZFXUnicodeString, const char*, const char*> rows[] = {
        {"Current", "taken", kDuplicate, "S_OK"}, {"TAKEN", "New", "S_OK", kDuplicate},
        {"TAKEN", "", kDuplicate, kDuplicate}, {"", "", "NameLengthERR_02", "S_OK"},
        {"1.", "", "LeadingDigitERR_01", reserved}, {"Current", "a.日", reserved, reserved},
        {"Current", "a b日", "DoubleByteCharErr_01", illegal}, {"Current", "Träger", "S_OK", "S_OK"},
        {"Current", ZFXUnicodeString(u"\xDC00"), "DoubleByteCharErr_01", "S_OK"},
        {"Current", Repeated('1', kMillion), "NameLengthERR_01", "S_OK"},
    };
    // clang-format on
    for (const auto& [current, name, check, file] : rows) {
        feature.Alias(current);
        EXPECT_EQ(CheckName(feature, name, 1), check) << name;
        EXPECT_EQ(Call(feature, name, QVRNameUtil::CheckFileName), file) << name;
    }
    EXPECT_EQ(CheckName(feature, "1.", 0), reserved);
    other.Alias(Repeated('y', 80));
    EXPECT_EQ(CheckName(feature, Repeated('y', 80), 1), kDuplicate) << "a name that clashes and is too long";
}

/// Proposes five names for a feature in one call and in five calls, and expects equal names. Each proposed name is
/// given to a new feature.
TEST_F(EntryPointsTest, BatchEqualsSingleProposalsThatAreUsed) {
    MemoryFeature analysisCase = document.Case("Case");
    analysisCase.Step("QVROruInitialStepLT", "Initial");
    MemoryFeature step = analysisCase.Step("QVRStaticLPStepLT", "P-1");
    MemoryFeature loads = step.Set("QVRLoadContainerLT");
    MemoryFeature properties = document.PropertySet();
    const std::tuple<MemoryFeature, std::function<void(const char*)>> rows[] = {
        {step, [&](const char* name) { analysisCase.Step("QVRStaticLPStepLT", name); }},
        {loads.Feature("QVRPressure", "P-4"), [&](const char* name) { loads.Feature("QVRPressure", name); }},
        {properties.Feature("QVRShellSectionEnhLT", "P-2147483647"),
         [&](const char* name) { properties.Feature("QVRShellSectionEnhLT", name); }},
    };
    for (const auto& [subject, use] : rows) {
        ZFXISpecObject_var handle(subject);
        ZFXISamAnalysisCase_var none;
        ZFXListValZFXUnicodeString names;
        names.Append("kept");
        EXPECT_EQ(QVRNameUtil::GetUniqueNames("P-", handle, none, 5, names), S_OK);
        EXPECT_EQ(QVRNameUtil::GetUniqueNames("P-", handle, none, 0, names), E_FAIL);
        ASSERT_EQ(names.Size(), 6);
        for (int i = 2; i <= names.Size(); ++i) {
            EXPECT_EQ(Narrow(names[i]), Propose(subject, "P-", {})) << subject.LateType();
            use(names[i].ConvertToChar());
        }
    }
}

} // namespace
