#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

namespace {

class StepMembershipTest : public DocumentTest {
protected:
    MemoryFeature analysisCase = document.Case("Static");
    MemoryFeature earlier = analysisCase.Step("T", "Step-1").Set("QVRLoadContainerLT");
    MemoryFeature later = analysisCase.Step("T", "Step-2").Set("QVRLoadContainerLT");
    MemoryFeature load = earlier.Feature("QVRPressure", "New");

    /// Returns the next free number among the features that the steps contain.
    std::string Propose() {
        ZFXUnicodeString name;
        ZFXISpecObject_var feature(load);
        ZFXISamAnalysisCase_var scope(analysisCase);
        QVRNameUtil::GetUniqueName(name, feature, scope);
        return Text(name);
    }
};

TEST_F(StepMembershipTest, ParentStepNameIsEmptyOutsideEveryStep) {
    const auto parent = [](MemoryFeature feature) {
        ZFXUnicodeString name("before");
        const HRESULT code = QVRNameUtil::GetParentStepName(feature, name);
        return ResultText(code) + "|" + Text(name);
    };
    EXPECT_EQ(parent(load), "S_OK|Step-1");
    EXPECT_EQ(parent(analysisCase), "S_OK|");
    EXPECT_EQ(parent({}), "E_FAIL|before");
    MemoryFeature nameless = analysisCase.Step("T", "Step-3").Without(IID_ZFXIAlias);
    EXPECT_EQ(parent(nameless.Set("S")), "E_FAIL|");
}

TEST_F(StepMembershipTest, PropagatedFeaturesAreLeftOutExceptInitialTemperatures) {
    later.Feature("QVRPressure", "4").Propagated();
    EXPECT_EQ(Propose(), "1");
    later.Feature("QVRInitialTemperatureLT", "6").Propagated();
    EXPECT_EQ(Propose(), "7");
    later.Feature("QVRPressure", "8").Propagated().Without(IID_QVRIPropagatingFeature);
    EXPECT_EQ(Propose(), "9"); // a feature without the interface cannot be propagated
}

} // namespace
