#include "support/ScopeTest.h"

namespace {

struct StepMembershipTest : ScopeTest {
    /// Returns the next number of the features that GetObjectsInStep finds in all steps.
    std::string Propose() { return ScopeTest::Propose(load, "", analysisCase); }
    static std::string ParentStep(MemoryFeature feature) {
        return Call(feature, "before", QVRNameUtil::GetParentStepName);
    }

    MemoryFeature analysisCase = document.Case("Static");
    MemoryFeature load = analysisCase.Step("T", "Step-1").Set("QVRLoadContainerLT").Feature("QVRPressure", "New");
    MemoryFeature later = analysisCase.Step("T", "Step-2").Set("QVRLoadContainerLT");
};

TEST_F(StepMembershipTest, NameOfTheParentStepIsEmptyOutsideOfSteps) {
    EXPECT_EQ(ParentStep(load), "S_OK|Step-1");
    EXPECT_EQ(ParentStep(analysisCase), "S_OK|");
}

TEST_F(StepMembershipTest, PropagatedFeaturesAreSkippedExceptInitialTemperatures) {
    later.Feature("QVRPressure", "4").Propagated();
    EXPECT_EQ(Propose(), "1");
    later.Feature("QVRInitialTemperatureLT", "6").Propagated();
    EXPECT_EQ(Propose(), "7");
    later.Feature("QVRPressure", "8").Propagated().Without(IID_QVRIPropagatingFeature);
    EXPECT_EQ(Propose(), "9") << "a feature that does not offer QVRIPropagatingFeature";
}

} // namespace
