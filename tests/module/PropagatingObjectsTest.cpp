#include "support/ScopeTest.h"

namespace {

/// Three steps with loads in sets of one late type. `load` is in the second step.
struct PropagatingObjectsTest : ScopeTest {
    std::string Propose() { return ScopeTest::Propose(load, "Pressure-", analysisCase); }

    MemoryFeature analysisCase = document.Case("Static");
    MemoryFeature step1 = analysisCase.Step("T", "Step-1");
    MemoryFeature step2 = analysisCase.Step("T", "Step-2");
    MemoryFeature step3 = analysisCase.Step("T", "Step-3");
    MemoryFeature loads3 = step3.Set("QVRLoadContainerLT");
    MemoryFeature load = step2.Set("QVRLoadContainerLT").Feature("QVRPressure", "New");
    MemoryFeature pressure1 = step1.Set("QVRLoadContainerLT").Feature("QVRPressure", "Pressure-1");
    MemoryFeature pressure2 = loads3.Feature("QVRPressure", "Pressure-2");
};

TEST_F(PropagatingObjectsTest, ScopeIsAllSetsOfOneLateTypeInAllSteps) {
    EXPECT_EQ(Propose(), "Pressure-3");
    EXPECT_EQ(Check(load, "PRESSURE-2"), kDuplicate);
    EXPECT_EQ(Check(load, "New"), "S_OK") << "its own name";
    step3.Set("QVRBoundaryConditionContainerLT").Feature("QVRClamp", "Pressure-9");
    EXPECT_EQ(Propose(), "Pressure-3") << "a set of another late type";
    step1.Set("QVRLoadContainerLT").Feature("QVRGravity", "Pressure-5");
    EXPECT_EQ(Propose(), "Pressure-6") << "a second set of the late type in a step";
    document.Case("Other").Step("T", "Step-1").Set("QVRLoadContainerLT").Feature("QVRPressure", "Pressure-7");
    EXPECT_EQ(Propose(), "Pressure-6") << "another case";
    loads3.AddMember(load.Alias("Pressure-20"));
    EXPECT_EQ(Propose(), "Pressure-6") << "the feature itself is skipped in every set";
}

TEST_F(PropagatingObjectsTest, PropagatedFeaturesAreSkippedExceptInitialTemperatures) {
    loads3.Feature("QVRPressure", "Pressure-4").Propagated();
    EXPECT_EQ(Propose(), "Pressure-3");
    loads3.Feature("QVRInitialTemperatureLT", "Pressure-6").Propagated();
    EXPECT_EQ(Propose(), "Pressure-7");
    loads3.Feature("QVRPressure", "Pressure-8").Propagated().Without(IID_QVRIPropagatingFeature);
    EXPECT_EQ(Propose(), "Pressure-9") << "a feature that does not offer QVRIPropagatingFeature";
}

TEST_F(PropagatingObjectsTest, FeatureOutsideOfACaseIsComparedInTheCurrentCase) {
    load = document.Model().Set("QVRLoadContainerLT").Feature("QVRPressure", "New").With(IID_QVRIPropagatingFeature);
    EXPECT_EQ(Check(load, "Pressure-1"), kDuplicate);
    document.MakeCurrent({});
    EXPECT_EQ(Check(load, "Pressure-1"), "S_OK") << "no current case";
    model.FailNth(MemoryRequest::GetCurrentAnalysisCaseSP, 1, kFailure);
    EXPECT_EQ(Check(load, "Pressure-1"), "code");
    load.FailAlways(MemoryRequest::GetOwningDocument);
    EXPECT_EQ(Check(load, "Pressure-1"), "E_FAIL") << "the code of GetParentCaseFromObject";
    load.Without(IID_ZFXILinkableObject);
    EXPECT_EQ(Check(load, "Pressure-1"), "E_FAIL") << "the code of GetParentCaseFromObject";
}

} // namespace
