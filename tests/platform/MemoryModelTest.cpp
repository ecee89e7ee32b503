#include "memory-model/MemoryModel.h"

#include "analysis/WorkbenchUtilities.h"
#include "support/DocumentTest.h"

#include <functional>

namespace {

class MemoryModelTest : public DocumentTest {};

std::string Names(const ZFXListValZFXBaseUnknown_var& list) {
    std::string names;
    for (int i = 1; i <= list.Size(); ++i)
        names += Text(ZFXIAlias_var(list[i])->GetAlias()) + " ";
    return names;
}

TEST_F(MemoryModelTest, ADocumentIsSearchedInItsOrder) {
    MemoryFeature analysisCase = document.Case("Static");
    MemoryFeature first = analysisCase.Step("QVRGeneralStaticStepLT", "First");
    MemoryFeature second = analysisCase.Step("QVRGeneralStaticStepLT", "Second");
    MemoryFeature loads = first.Set("QVRLoadContainerLT");
    MemoryFeature a = loads.Feature("QVRPressure", "a");
    second.Set("QVRLoadContainerLT").Feature("QVRPressure", "b");
    loads.Feature("QVRPressure", "c");

    ZFXListValZFXBaseUnknown_var found;
    const ZFXISamAnalysisScan_var scan(analysisCase);
    EXPECT_EQ(scan->FindObjectsOfType("QVRPressure", found, 3), S_OK);
    EXPECT_EQ(Names(found), "a c b ");
    found.RemoveAll();
    EXPECT_EQ(scan->FindObjectsOfType("QVRpressure", found, 3), S_OK);
    EXPECT_EQ(found.Size(), 0);
    EXPECT_EQ(ZFXISamAnalysisScan_var(analysisCase.History())->ListChildren(found, 3), S_OK);
    EXPECT_EQ(Names(found), "First Second ");

    ZFXISpecObject_var step;
    ZFXISpecObject_var parent;
    EXPECT_EQ(QVRAnalysisEntityUtils::GetParentStep(ZFXISpecObject_var(a), step), S_OK);
    EXPECT_TRUE(step == first.Object());
    EXPECT_EQ(QVRAnalysisEntityUtils::GetParentCaseFromObject(ZFXISpecObject_var(a), parent), S_OK);
    EXPECT_TRUE(parent == analysisCase.Object());
    const ZFXListValZFXISpecAttribute_var* pointing =
        ZFXISpecObject_var(second)->ListPointingAttributes("ZFXISpecObject", "", "");
    ASSERT_EQ(pointing->Size(), 1);
    EXPECT_TRUE(ZFXBaseUnknown_var::Attach((*pointing)[1]->GetOwner()) == analysisCase.History().Object());

    MemoryFeature job = analysisCase.Job("Job-1");
    ZFXListValZFXBaseUnknown_var* sets = nullptr;
    EXPECT_EQ(ZFXISamAnalysisEntity_var(job)->GetParentSets(sets), S_OK);
    const ZFXISpecObject_var container((*sets)[1]);
    EXPECT_TRUE(ZFXBaseUnknown_var::Attach(container->GetFather()) == document.Model().Object());
    delete sets;
}

TEST_F(MemoryModelTest, KindsOfferWhatTheyAreAndCanBeToldNotTo) {
    MemoryFeature step = document.Case("Static").Step("QVRGeneralStaticStepLT", "Step-1");
    MemoryFeature load = step.Set("QVRLoadContainerLT").Feature("QVRPressure", "Pressure-1");
    MemoryFeature section = document.PropertySet().Feature("QVRShellSectionEnhLT", "Section");
    MemoryFeature amplitude = document.PropertySet().Feature("QVRTabularAmplitudeLT", "Amplitude");
    EXPECT_TRUE(QVRIPropagatingFeature_var(load) && ZFXISamAnalysisEntity_var(load) && !QVRIStep_var(load));
    EXPECT_TRUE(QVRIStep_var(step) && ZFXISamAnalysisScan_var(step) && !ZFXISamAnalysisEntity_var(step));
    EXPECT_TRUE(ZFXISamAnalysisEntity_var(section) && !QVRIPropagatingFeature_var(section));
    ZFXISpecObject_var property(section);
    ZFXISpecObject_var curve(amplitude);
    EXPECT_TRUE(QVRAnalysisEntityUtils::IsObjectAProperty(property) &&
                !QVRAnalysisEntityUtils::IsObjectAProperty(curve) &&
                QVRAnalysisEntityUtils::IsObjectAnAmplitude(curve));
#define ZFX_INTERFACE(name)                                                                                            \
    EXPECT_EQ(bool(name##_var(load.With(IID_##name))), IID_##name != IID_ZFXISpecAttribute) << #name;                  \
    EXPECT_TRUE(!name##_var(load) || name##_var(load) == load.Object()) << #name;                                      \
    EXPECT_FALSE(name##_var(load.Without(IID_##name))) << #name;
#include "object-model/ZFXInterfaces.def"
#undef ZFX_INTERFACE
}

TEST_F(MemoryModelTest, FaultsCountTheRequestsThatTheyMatch) {
    const ZFXIAlias_var alias(document.Case("a"));
    const auto get = [&] { return Text(alias->GetAlias()); };
    const long before = model.Requests();
    EXPECT_EQ(get(), "a");
    EXPECT_EQ(model.Requests(), before + 1);
    model.FailNth(MemoryRequest::Any, 2);
    model.FailNth(MemoryRequest::GetAlias, 3);
    EXPECT_EQ(get() + "," + get() + "," + get() + "," + get(), "a,,,a");
    document.Case("other").FailAlways(MemoryRequest::GetAlias);
    EXPECT_EQ(get(), "a");
}

TEST(MemoryModelArguments, OthersThanThoseOfTheModuleAreRejected) {
    using Features = ZFXListValZFXISpecObject_var;
    using Objects = ZFXListValZFXBaseUnknown_var;
    const auto pointing = [](MemoryFeature set, const char* interfaceName, const char* type, const char* name) {
        return ZFXISpecObject_var(set)->ListPointingAttributes(interfaceName, type, name) == nullptr;
    };
    struct Row {
        const char* request;
        std::function<bool(MemoryFeature set)> isRejected;
    };
    // clang-format off
    const Row rows[] = {
        {"FindObjectsOfType", [](auto set) { Objects found; return ZFXISamAnalysisScan_var(set)->FindObjectsOfType("T", found, 2) == E_INVALIDARG; }},
        {"ListChildren", [](auto set) { Objects found; return ZFXISamAnalysisScan_var(set)->ListChildren(found, 4) == E_INVALIDARG; }},
        {"ListMembers", [](auto set) { Features found; return ZFXISamAnalysisSet_var(set)->ListMembers(found, IID_ZFXISpecObject, 0) == E_INVALIDARG; }},
        {"ListMembers", [](auto set) { Features found; return ZFXISamAnalysisSet_var(set)->ListMembers(found, CLSID_ZFXBaseUnknown, 1) == E_INVALIDARG; }},
        {"ListPointingAttributes", [&](auto set) { return pointing(set, nullptr, "", ""); }},
        {"ListPointingAttributes", [&](auto set) { return pointing(set, "ZFXIAlias", "", ""); }},
        {"ListPointingAttributes", [&](auto set) { return pointing(set, "ZFXISpecObject", "T", ""); }},
        {"ListPointingAttributes", [&](auto set) { return pointing(set, "ZFXISpecObject", "", "n"); }},
        {"GetExplicitChild", [](auto set) { ZFXAnalysisExplicitChild child; return ZFXISamExplicit_var(set)->GetExplicitChild(child, 0) == E_INVALIDARG; }},
        {"GetString", [](auto set) { const ZFXISpecAttrAccess_var access(set); return access->GetString(ZFXISpecAttrKey_var::TakeOver(access->GetAttrKey("Alias")), 1) == ""; }},
        {"SetString", [](auto set) { const ZFXISpecAttrAccess_var access(set); access->SetString(ZFXISpecAttrKey_var::TakeOver(access->GetAttrKey("Alias")), "b", 1); return set.StoredAlias() == "a"; }},
    };
    // clang-format on
    for (const Row& row : rows) {
        MemoryModel model;
        MemoryFeature set = model.NewDocument().Model().Set("T").With(IID_ZFXISamExplicit).Alias("a");
        EXPECT_STREQ(model.FirstUnexpectedArgument(), "");
        EXPECT_TRUE(row.isRejected(set)) << row.request;
        EXPECT_STREQ(model.FirstUnexpectedArgument(), row.request);
    }
}

TEST(MemoryModelLife, ObjectsOutliveTheModelForWhoHoldsThem) {
    const long before = MemoryModel::LiveObjects();
    ZFXISpecObject_var held;
    ZFXISpecAttribute_var attribute;
    ZFXBaseUnknown_var heldDocument;
    {
        MemoryModel model;
        MemoryDocument document = model.NewDocument();
        MemoryFeature step = document.Case("Static").Step("T", "Step-1");
        heldDocument = document.Document();
        held = step;
        attribute = (*held->ListPointingAttributes("ZFXISpecObject", "", ""))[1];
        EXPECT_EQ(model.References(), 3);
        EXPECT_EQ(step.References(), 2);
    }
    EXPECT_EQ(MemoryModel::LiveObjects(), before + 1);
    EXPECT_EQ(Text(held->GetLateType()), "T");
    EXPECT_EQ(held->GetFather(), nullptr);
    EXPECT_EQ(attribute->GetOwner(), nullptr);
    EXPECT_EQ(ZFXILinkableObject_var(held)->GetOwningDocument(), nullptr);
    held = nullptr;
    EXPECT_EQ(MemoryModel::LiveObjects(), before);
}

} // namespace
