#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

namespace {

class StepMembershipTest : public DocumentTest {};

TEST_F(StepMembershipTest, AFeatureKnowsTheNameOfItsStep) {
    MemoryFeature step = document.Case("Static").Step("T", "Step-1");
    MemoryFeature load = step.Set("S").Feature("QVRPressure", "Pressure-1");
    const auto ask = [](const ZFXISpecObject_var& object) {
        ZFXUnicodeString name("before");
        const HRESULT code = QVRNameUtil::GetParentStepName(object, name);
        return Said(code) + "|" + Text(name);
    };
    EXPECT_EQ(ask(load), "S_OK|Step-1");
    EXPECT_EQ(ask(document.Model().Feature("QVRPressure", "outside")), "S_OK|");
    EXPECT_EQ(ask({}), "E_FAIL|before");
    model.AnswerOnce(MemoryRequest::GetParentStep, 1, kFailsFilled);
    EXPECT_EQ(ask(load), std::to_string(kCode) + "|");
    model.AnswerOnce(MemoryRequest::GetParentStep, 1, {5, true});
    EXPECT_EQ(ask(load), "5|Step-1");
    step.Without(IID_ZFXIAlias);
    EXPECT_EQ(ask(load), "E_FAIL|");
}

} // namespace
