#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

namespace {

/// Three steps with loads of one kind of set; the load under test lies in the second.
class PropagatingObjectsTest : public DocumentTest {
protected:
    MemoryFeature analysisCase = document.Case("Static");
    MemoryFeature step1 = analysisCase.Step("T", "Step-1");
    MemoryFeature step2 = analysisCase.Step("T", "Step-2");
    MemoryFeature step3 = analysisCase.Step("T", "Step-3");
    MemoryFeature loads1 = step1.Set("QVRLoadContainerLT");
    MemoryFeature loads2 = step2.Set("QVRLoadContainerLT");
    MemoryFeature loads3 = step3.Set("QVRLoadContainerLT");
    MemoryFeature load = loads2.Feature("QVRPressure", "New");
    MemoryFeature p1 = loads1.Feature("QVRPressure", "Pressure-1");
    MemoryFeature p2 = loads3.Feature("QVRPressure", "Pressure-2");

    std::string Propose(const char* base = "Pressure-") {
        ZFXUnicodeString name(base);
        ZFXISpecObject_var feature(load);
        ZFXISamAnalysisCase_var scope(analysisCase);
        QVRNameUtil::GetUniqueName(name, feature, scope);
        return Text(name);
    }
    std::string Check(const ZFXUnicodeString& name) {
        ZFXISpecObject_var feature(load);
        return ResultText(QVRNameUtil::IsNameUnique(feature, name));
    }
};

TEST_F(PropagatingObjectsTest, TheScopeIsTheSameKindOfSetInEveryStep) {
    EXPECT_EQ(Propose(), "Pressure-3");
    EXPECT_EQ(Check("PRESSURE-2"), "DuplicateNameERR_02 -100");
    EXPECT_EQ(Check("New"), "S_OK"); // its own name
    step3.Set("QVRBoundaryConditionContainerLT").Feature("QVRClamp", "Pressure-9");
    EXPECT_EQ(Propose(), "Pressure-3"); // another kind of set
    step1.Set("QVRLoadContainerLT").Feature("QVRGravity", "Pressure-5");
    EXPECT_EQ(Propose(), "Pressure-6"); // another set of the kind
    document.Case("Other").Step("T", "Step-1").Set("QVRLoadContainerLT").Feature("QVRPressure", "Pressure-7");
    EXPECT_EQ(Propose(), "Pressure-6"); // another case
    loads3.AddMember(load);             // held twice, the first set counts, and it is left out wherever it occurs
    load.Alias("Pressure-20");
    EXPECT_EQ(Propose(), "Pressure-6");
}

TEST_F(PropagatingObjectsTest, TheLastStepDecidesTheCodeAndFailedStepsGiveNothing) {
    step1.FailAlways(MemoryRequest::FindObjectsOfType, kFails);
    EXPECT_EQ(Check("Pressure-1"), "S_OK");
    EXPECT_EQ(Check("Pressure-2"), "DuplicateNameERR_02 -100");
    step3.FailAlways(MemoryRequest::FindObjectsOfType, kFailsFilled);
    EXPECT_EQ(Check("Free"), std::to_string(kCode));
}

TEST_F(PropagatingObjectsTest, OutsideEveryCaseTheCurrentOneOfTheDocumentCounts) {
    load = document.Model().Set("QVRLoadContainerLT").Feature("QVRPressure", "New").With(IID_QVRIPropagatingFeature);
    EXPECT_EQ(Check("Pressure-1"), "DuplicateNameERR_02 -100");
    document.MakeCurrent({});
    EXPECT_EQ(Check("Pressure-1"), "S_OK");
    model.FailNth(MemoryRequest::GetCurrentAnalysisCaseSP, 1, kFails);
    EXPECT_EQ(Check("Pressure-1"), std::to_string(kCode));
    load.FailAlways(MemoryRequest::GetOwningDocument);
    EXPECT_EQ(Check("Pressure-1"), "E_FAIL"); // the code of the question for the case
    load.Without(IID_ZFXILinkableObject);
    EXPECT_EQ(Check("Pressure-1"), "E_FAIL");
}

} // namespace
