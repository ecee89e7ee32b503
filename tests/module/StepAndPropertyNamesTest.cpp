#include "support/ScopeTest.h"

namespace {

struct StepNamesTest : ScopeTest {
    MemoryFeature analysisCase = document.Case("Static");
    MemoryFeature initial = analysisCase.Step("QVROruInitialStepLT", "Static Step-7");
    MemoryFeature step = analysisCase.Step("QVRGeneralStaticStepLT", "Static Step-1");
    MemoryFeature other = analysisCase.Step("QVRGeneralStaticStepLT", "Static Step-2");
};

TEST_F(StepNamesTest, FirstChildOfAHistoryIsComparedButNotNumbered) {
    EXPECT_EQ(Propose(step, "Static Step-", analysisCase), "Static Step-3");
    EXPECT_EQ(Check(step, "static step-7"), "DuplicateNameERR_01");
    EXPECT_EQ(Propose({}, "Static Step-", analysisCase), "Static Step-") << "no feature";
    MemoryFeature otherCase = document.Case("Other");
    EXPECT_EQ(Propose(step, "Static Step-", otherCase), "Static Step-1");
    otherCase.Step("T", "Static Step-9");
    EXPECT_EQ(Propose(step, "Static Step-", otherCase), "Static Step-1") << "the only child";
    step.PointedAtBy(otherCase.History());
    EXPECT_EQ(Check(step, "Static Step-9"), "S_OK") << "only the first history above a step counts";
}

TEST_F(StepNamesTest, ErrorOfTheComparisonIsFollowedByOneAboutSteps) {
    ZFXISpecObject_var handle(step);
    const HRESULT code = QVRNameUtil::IsNameUnique(handle, "Static Step-2");
    EXPECT_EQ(ResultText(code), "DuplicateNameERR_01");
    EXPECT_EQ(ResultText(code - 1), kDuplicate) << "the error registered before it";
    other.Without(IID_ZFXIAlias);
    EXPECT_EQ(Check(step, "x"), "ZFXIAliasERR_01") << "another error of the comparison";
}

TEST_F(StepNamesTest, PropertiesAndAmplitudesAreNumberedInThePropertySet) {
    MemoryFeature section = document.PropertySet().Feature("QVRShellSectionEnhLT", "P-3");
    MemoryFeature amplitude = document.PropertySet().Feature("QVRTabularAmplitudeLT", "P-x");
    EXPECT_EQ(Propose(section, "P-", analysisCase), "P-4") << "the section itself counts";
    EXPECT_EQ(Propose(amplitude, "P-", analysisCase), "P-4");
}

TEST_F(StepNamesTest, OtherFeaturesAreUniqueInNoSet) {
    MemoryFeature feature = document.Model().Feature("T", "a").With(IID_ZFXISamAnalysisEntity);
    EXPECT_EQ(Check(feature, "b"), "S_OK");
    model.FailNth(MemoryRequest::GetParentSets, 1, {4, false});
    EXPECT_EQ(Check(feature, "b"), "4") << "the code of a request that returned no list";
}

} // namespace
