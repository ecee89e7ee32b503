#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

namespace {

class StepNamesTest : public DocumentTest {
protected:
    MemoryFeature analysisCase = document.Case("Static");
    MemoryFeature initial = analysisCase.Step("QVROruInitialStepLT", "Static Step-7");
    MemoryFeature step = analysisCase.Step("QVRGeneralStaticStepLT", "Static Step-1");
    MemoryFeature other = analysisCase.Step("QVRGeneralStaticStepLT", "Static Step-2");

    std::string Propose(MemoryFeature feature, const char* base) {
        ZFXUnicodeString name(base);
        ZFXISpecObject_var handle(feature);
        ZFXISamAnalysisCase_var scope(analysisCase);
        QVRNameUtil::GetUniqueName(name, handle, scope);
        return Text(name);
    }
    static std::string Check(MemoryFeature feature, const ZFXUnicodeString& name) {
        ZFXISpecObject_var handle(feature);
        return ResultText(QVRNameUtil::IsNameUnique(handle, name));
    }
};

TEST_F(StepNamesTest, TheFirstChildIsNotNumberedAgainstButStillTaken) {
    EXPECT_EQ(Propose(step, "Static Step-"), "Static Step-3");
    EXPECT_EQ(Check(step, "static step-7"), "DuplicateNameERR_01");
    EXPECT_EQ(Check(step, "Static Step-2"), "DuplicateNameERR_01");
    EXPECT_EQ(Check(step, "Static Step-1"), "S_OK");
    analysisCase = document.Case("Empty");
    EXPECT_EQ(Propose(step, "Static Step-"), "Static Step-1");
}

TEST_F(StepNamesTest, AClashIsToldInTheStepsOwnWords) {
    MemoryFeature otherCase = document.Case("Other");
    otherCase.Step("T", "Elsewhere");
    step.PointedAtBy(otherCase.History()); // a second history above: only the first counts
    EXPECT_EQ(Check(step, "Elsewhere"), "S_OK");
    step.PointedAtBy(document.Model());
    ZFXISpecObject_var handle(step);
    const HRESULT code = QVRNameUtil::IsNameUnique(handle, "Static Step-2");
    const ZFXError* last = ZFXError::ZFXGetLastError(code, nullptr);
    ASSERT_NE(last, nullptr);
    EXPECT_STREQ(last->GetMsgId(), "DuplicateNameERR_01");
    EXPECT_EQ(last->GetReturnCode(), 0);
    const ZFXError* comparison = ZFXError::ZFXGetLastError(code - 1, nullptr); // registered just before it
    ASSERT_NE(comparison, nullptr);
    EXPECT_STREQ(comparison->GetMsgId(), "DuplicateNameERR_02");
    EXPECT_EQ(comparison->GetReturnCode(), -100);
    other.Without(IID_ZFXIAlias);
    EXPECT_EQ(Check(step, "x"), "ZFXIAliasERR_01"); // raised again under its own id
}

TEST_F(StepNamesTest, PropertiesAndAmplitudesAreNumberedInThePropertySet) {
    MemoryFeature section = document.PropertySet().Feature("QVRShellSectionEnhLT", "P-3");
    MemoryFeature amplitude = document.PropertySet().Feature("QVRTabularAmplitudeLT", "P-x");
    EXPECT_EQ(Propose(section, "P-"), "P-4"); // counts itself: it is in the set
    EXPECT_EQ(Propose(amplitude, "P-"), "P-4");
    document.PropertySet().Without(IID_ZFXISamAnalysisSet);
    EXPECT_EQ(Propose(section, "P-"), "P-");
}

TEST_F(StepNamesTest, OtherFeaturesAreComparedInTheirSet) {
    MemoryFeature set = document.Model().Set("S");
    MemoryFeature feature = set.Feature("T", "a");
    set.Feature("T", "b");
    EXPECT_EQ(Check(feature, "B"), "DuplicateNameERR_02 -100");
    EXPECT_EQ(Check(document.Model().Feature("T", "loose"), "b"), "S_OK");
    model.FailNth(MemoryRequest::GetParentSets, 1, {4, false}); // no list
    EXPECT_EQ(Check(feature, "b"), "4");
    EXPECT_EQ(Check(document.Model().Feature("T", "in none").With(IID_ZFXISamAnalysisEntity), "b"), "S_OK");
}

} // namespace
