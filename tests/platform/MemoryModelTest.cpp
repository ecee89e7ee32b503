#include "memory-model/MemoryModel.h"

#include "analysis/WorkbenchUtilities.h"
#include "support/DocumentTest.h"

#include <functional>
#include <memory>
#include <vector>

namespace {

using Objects = ZFXListValZFXBaseUnknown_var;
using Features = ZFXListValZFXISpecObject_var;

class MemoryModelTest : public DocumentTest {};

std::string Names(const Objects& list) {
    std::string names;
    for (const ZFXBaseUnknown_var& object : list)
        names += Narrow(ZFXIAlias_var(object)->GetAlias()) + " ";
    return names;
}

TEST_F(MemoryModelTest, SearchesFollowTheOrderOfTheDocument) {
    MemoryFeature analysisCase = document.Case("Static");
    MemoryFeature first = analysisCase.Step("QVRGeneralStaticStepLT", "First");
    MemoryFeature second = analysisCase.Step("QVRGeneralStaticStepLT", "Second");
    MemoryFeature loads = first.Set("QVRLoadContainerLT");
    MemoryFeature a = loads.Feature("QVRPressure", "a");
    second.Set("QVRLoadContainerLT").Feature("QVRPressure", "b");
    loads.Feature("QVRPressure", "c");

    EXPECT_FALSE(MemoryFeature().Step("T", "below no object"));
    Objects found;
    const ZFXISamAnalysisScan_var scan(analysisCase);
    EXPECT_EQ(scan->FindObjectsOfType("QVRpressure", found, 3), S_OK);
    EXPECT_EQ(Names(found), "");
    EXPECT_EQ(scan->FindObjectsOfType("QVRPressure", found, 3), S_OK);
    EXPECT_EQ(ZFXISamAnalysisScan_var(analysisCase.History())->ListChildren(found, 3), S_OK);
    EXPECT_EQ(Names(found), "a c b First Second ");
    Objects* sets = nullptr;
    second.Set("AnyLT").AddMember(a);
    EXPECT_EQ(ZFXISamAnalysisEntity_var(a)->GetParentSets(sets), S_OK);
    EXPECT_EQ(std::unique_ptr<Objects>(sets)->Size(), 2);
}

TEST_F(MemoryModelTest, KindsOfferTheirInterfacesUnlessWithheld) {
    MemoryFeature step = document.Case("Static").Step("QVRGeneralStaticStepLT", "Step-1");
    MemoryFeature load = step.Set("QVRLoadContainerLT").Feature("QVRPressure", "Pressure-1");
    MemoryFeature section = document.PropertySet().Feature("QVRShellSectionEnhLT", "Section");
    const auto offered = [](MemoryFeature feature) {
        return std::string(QVRIStep_var(feature) ? "step " : "") + (ZFXISamAnalysisScan_var(feature) ? "scan " : "") +
               (ZFXISamAnalysisEntity_var(feature) ? "entity " : "") +
               (QVRIPropagatingFeature_var(feature) ? "propagating " : "");
    };
    EXPECT_EQ(offered(load), "entity propagating ");
    EXPECT_EQ(offered(step), "step scan ");
    EXPECT_EQ(offered(section), "entity ");
    ZFXISpecObject_var property(section);
    ZFXISpecObject_var curve(document.PropertySet().Feature("QVRTabularAmplitudeLT", "Amplitude"));
    EXPECT_TRUE(QVRAnalysisEntityUtils::IsObjectAProperty(property));
    EXPECT_FALSE(QVRAnalysisEntityUtils::IsObjectAProperty(curve));
    EXPECT_TRUE(QVRAnalysisEntityUtils::IsObjectAnAmplitude(curve));
#define ZFX_INTERFACE(name)                                                                                            \
    EXPECT_EQ(bool(name##_var(load.With(IID_##name))), IID_##name != IID_ZFXISpecAttribute) << #name;                  \
    EXPECT_TRUE(!name##_var(load) || name##_var(load) == load.Object()) << #name;                                      \
    EXPECT_FALSE(name##_var(load.Without(IID_##name))) << #name;
#include "object-model/ZFXInterfaces.def"
#undef ZFX_INTERFACE
    document.PropertySet().AddMember(load);
    EXPECT_FALSE(ZFXISamAnalysisEntity_var(load)) << "a withheld interface is not offered again";
}

TEST_F(MemoryModelTest, FaultsCountTheRequestsThatTheyMatch) {
    const ZFXIAlias_var alias(document.Case("a"));
    const auto get = [&] { return Narrow(alias->GetAlias()); };
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
    const auto pointing = [](MemoryFeature set, const char* interfaceName, const char* type, const char* name) {
        return ZFXISpecObject_var(set)->ListPointingAttributes(interfaceName, type, name) == nullptr;
    };
    // clang-format off
    const std::pair<const char*, std::function<bool(MemoryFeature set)>> rows[] = {
        {"FindObjectsOfType", [](auto set) { Objects found; return ZFXISamAnalysisScan_var(set)->FindObjectsOfType("T", found, 2) == E_INVALIDARG; }},
        {"ListChildren", [](auto set) { Objects found; return ZFXISamAnalysisScan_var(set)->ListChildren(found, 4) == E_INVALIDARG; }},
        {"ListMembers", [](auto set) { Features found; return ZFXISamAnalysisSet_var(set)->ListMembers(found, IID_ZFXISpecObject, 0) == E_INVALIDARG; }},
        {"ListMembers", [](auto set) { Features found; return ZFXISamAnalysisSet_var(set)->ListMembers(found, CLSID_ZFXBaseUnknown, 1) == E_INVALIDARG; }},
        {"ListPointingAttributes", [&](auto set) { return pointing(set, nullptr, "", ""); }},
        {"ListPointingAttributes", [&](auto set) { return pointing(set, "ZFXIAlias", "", ""); }},
        {"ListPointingAttributes", [&](auto set) { return pointing(set, "ZFXISpecObject", "T", ""); }},
        {"ListPointingAttributes", [&](auto set) { return pointing(set, "ZFXISpecObject", "", "n"); }},
        {"GetExplicitChild", [](auto set) { ZFXAnalysisExplicitChild child; return ZFXISamExplicit_var(set)->GetExplicitChild(child, 0) == E_INVALIDARG; }},
        {"GetString", [](auto set) { const ZFXISpecAttrAccess_var access(set); return access->GetString(ZFXISpecAttrKey_var::Attach(access->GetAttrKey("Alias")), 1) == ""; }},
        {"SetString", [](auto set) { const ZFXISpecAttrAccess_var access(set); access->SetString(ZFXISpecAttrKey_var::Attach(access->GetAttrKey("Alias")), "b", 1); return set.StoredAlias() == "a"; }},
    };
    // clang-format on
    for (const auto& [request, isRejected] : rows) {
        MemoryModel model;
        MemoryFeature set = model.NewDocument().Model().Set("T").With(IID_ZFXISamExplicit).Alias("a");
        EXPECT_STREQ(model.FirstUnexpectedArgument(), "");
        EXPECT_TRUE(isRejected(set)) << request;
        EXPECT_STREQ(model.FirstUnexpectedArgument(), request);
    }
}

/// A document whose objects are referenced, and a function for each row of MemoryRequests.def. It makes the request,
/// and returns the code and whether its output is filled. The code of a request without one is derived from that.
class MemoryRequestsTest : public ::testing::Test {
protected:
    static MemoryResponse Got(bool isFilled) { return {isFilled ? S_OK : kFails.code, isFilled}; }
    template <class Output>
    static MemoryResponse Got(HRESULT code, const Output& output) {
        if constexpr (requires { output.Size(); })
            return {code, output.Size() != 0};
        else
            return {code, output != Output{}};
    }
    static MemoryResponse GotReference(ZFXBaseUnknown* object) { return Got(ZFXBaseUnknown_var::Attach(object)); }

    // clang-format off
    MemoryResponse Cast() { return Got(ZFXIAlias_var(load) != nullptr); }
    MemoryResponse GetAlias() { return Got(ZFXIAlias_var(load.Alias("a"))->GetAlias() == "a"); }
    MemoryResponse SetAlias() { ZFXIAlias_var(load.Unnamed())->SetAlias("a"); return Got(load.StoredAlias() == "a"); }
    MemoryResponse GetLateType() { return Got(ZFXISpecObject_var(load)->GetLateType() == "QVRPressure"); }
    MemoryResponse GetFather() { return GotReference(ZFXISpecObject_var(load)->GetFather()); }
    MemoryResponse ListPointingAttributes() { return Got(ZFXISpecObject_var(step)->ListPointingAttributes("ZFXISpecObject", "", "") != nullptr); }
    MemoryResponse GetOwner() { return GotReference(attribute->GetOwner()); }
    MemoryResponse GetAttrKey() { return GotReference(ZFXISpecAttrAccess_var(load)->GetAttrKey("Alias")); }
    MemoryResponse SetString() { ZFXISpecAttrAccess_var(load.Unnamed())->SetString(key, "a", 0); return Got(load.StoredAlias() == "a"); }
    MemoryResponse GetString() { return Got(ZFXISpecAttrAccess_var(load.Alias("a"))->GetString(key, 0) == "a"); }
    MemoryResponse GetOwningDocument() { return Got(ZFXILinkableObject_var(load)->GetOwningDocument() != nullptr); }
    MemoryResponse ListAnalysisCases() { Objects out; return Got(ZFXISamAnalysisModel_var(root)->ListAnalysisCases(out), out); }
    MemoryResponse FindObjectsOfType() { Objects out; return Got(ZFXISamAnalysisScan_var(root)->FindObjectsOfType("QVRPressure", out, 3), out); }
    MemoryResponse ListChildren() { Objects out; return Got(ZFXISamAnalysisScan_var(set)->ListChildren(out, 3), out); }
    MemoryResponse ListMembers() { Features out; return Got(ZFXISamAnalysisSet_var(set)->ListMembers(out, CLSID_ZFXBaseUnknown, 0), out); }
    MemoryResponse GetParentSets() { Objects* out = nullptr; const HRESULT code = ZFXISamAnalysisEntity_var(load)->GetParentSets(out); return Got(code, std::unique_ptr<Objects>(out)); }
    MemoryResponse IsPropagated() { return Got(QVRIPropagatingFeature_var(load)->IsPropagated() != 0); }
    MemoryResponse ListConnectors() { Objects out; return Got(ZFXISamAnalysisSupport_var(support)->ListConnectors(out), out); }
    MemoryResponse GetGroup() { ZFXBaseUnknown* out = nullptr; const HRESULT code = ZFXISamAnalysisConnector_var(connector)->GetGroup(out); return Got(code, ZFXBaseUnknown_var::Attach(out)); }
    MemoryResponse GetMasterAndSlaveConnectors() { Objects master, slave; const HRESULT code = QVRISamAnalysisConnectionDesign_var(design)->GetMasterAndSlaveConnectors(master, slave); return Got(code, master.Size() + slave.Size()); }
    MemoryResponse GetExplicitChild() { int tag = 0; ZFXAnalysisExplicitChild out; const HRESULT code = ZFXISamExplicit_var(part)->GetExplicitChild(out, 1); return Got(code, out.GetTag(tag) == S_OK); }
    MemoryResponse GetTag() { int tag = 0; const HRESULT code = child.GetTag(tag); return Got(code, tag); }
    MemoryResponse GetMaterialFeatureName() { return Got(ZFXIMaterialFeature_var(steel)->GetMaterialFeatureName() == "Iron"); }
    MemoryResponse GetAllAnalysisCases() { Objects out; return Got(QVRAnalysisDocUtils::GetAllAnalysisCases(out, nullptr), out); }
    MemoryResponse GetJobs() { Objects cases; cases.Append(ZFXBaseUnknown_var(analysisCase)); Features out; return Got(QVRAnalysisDocUtils::GetJobs(cases, out), out); }
    MemoryResponse GetAnalysisModel() { ZFXISamAnalysisModel_var out; return Got(QVRAnalysisDocUtils::GetAnalysisModel(out, nullptr), out); }
    MemoryResponse GetMeshManager() { ZFXIMSHMeshManager_var out; return Got(QVRAnalysisDocUtils::GetMeshManager(out, nullptr), out); }
    MemoryResponse IsTarnisAnalysisCase() { ZFXISamAnalysisCase_var in(analysisCase); return Got(QVRAnalysisDocUtils::IsTarnisAnalysisCase(in) != 0); }
    MemoryResponse GetParentStep() { ZFXISpecObject_var out; return Got(QVRAnalysisEntityUtils::GetParentStep(ZFXISpecObject_var(load), out), out); }
    MemoryResponse GetParentCaseFromObject() { ZFXISpecObject_var out; return Got(QVRAnalysisEntityUtils::GetParentCaseFromObject(ZFXISpecObject_var(load), out), out); }
    MemoryResponse IsObjectAProperty() { ZFXISpecObject_var in(load); return Got(QVRAnalysisEntityUtils::IsObjectAProperty(in) != 0); }
    MemoryResponse IsObjectAnAmplitude() { ZFXISpecObject_var in(load); return Got(QVRAnalysisEntityUtils::IsObjectAnAmplitude(in) != 0); }
    MemoryResponse GetCurrentAnalysisCaseSP() { ZFXISamAnalysisCase_var out; return Got(QVRStepUtils::GetCurrentAnalysisCaseSP(out, nullptr), out); }
    // clang-format on

    static constexpr MemoryResponse kFails{3, false};
    struct Row {
        MemoryRequest request;
        const char* name;
        MemoryResponse (MemoryRequestsTest::*make)();
    };
    static constexpr Row kRows[] = {
#define MEMORY_REQUEST(name) {MemoryRequest::name, #name, &MemoryRequestsTest::name},
#include "memory-model/MemoryRequests.def"
#undef MEMORY_REQUEST
    };
    /// Makes a request. Returns its code, followed by "-" if its output is not filled.
    std::string Make(const Row& row) {
        const MemoryResponse response = (this->*row.make)();
        return ResultText(response.code) + (response.filled ? "" : "-");
    }
    /// Makes each request. Returns the names and results of those that do not succeed with their output filled.
    std::string Unfilled() {
        std::string text;
        for (const Row& row : kRows)
            if (const std::string result = Make(row); result != "S_OK")
                text += row.name + (" " + result + "\n");
        return text;
    }

    const long live = MemoryModel::LiveObjects();
    const long allocations = ZFXBaseUnknown::LiveAllocations();
    std::unique_ptr<MemoryModel> model = std::make_unique<MemoryModel>();
    MemoryDocument document = model->NewDocument();
    MemoryFeature root = document.Model();
    MemoryFeature analysisCase = document.Case("Static");
    MemoryFeature job = analysisCase.Job("Job-1");
    MemoryFeature step = analysisCase.Step("T", "Step-1");
    MemoryFeature set = step.Set("QVRLoadContainerLT");
    MemoryFeature load = set.Feature("QVRPressure", "a").Propagated().Property().Amplitude().Attribute("Other", "");
    MemoryFeature connector = root.Add(MemoryKind::Connector, "C", "").SetGroup(set);
    MemoryFeature support = root.Add(MemoryKind::Support, "S", "").AddConnector(connector);
    MemoryFeature design = root.Add(MemoryKind::ConnectionDesign, "D", "").AddMaster(connector).AddSlave(connector);
    MemoryFeature part = document.MeshPart("Mesh-1", 3);
    MemoryFeature steel = root.Add(MemoryKind::Material, "M", "").MaterialName("Iron");
    std::vector<ZFXBaseUnknown_var> held{document.Document(), root,    analysisCase, step, set,  load,
                                         connector,           support, design,       part, steel};
    ZFXISpecAttrKey_var key = ZFXISpecAttrKey_var::Attach(ZFXISpecAttrAccess_var(load)->GetAttrKey("Alias"));
    ZFXISpecAttribute_var attribute = (*ZFXISpecObject_var(step)->ListPointingAttributes("ZFXISpecObject", "", ""))[1];
    ZFXAnalysisExplicitChild child;

    void SetUp() override { EXPECT_EQ(ZFXISamExplicit_var(part)->GetExplicitChild(child, 1), S_OK); }
};

TEST_F(MemoryRequestsTest, EachCanFailOnceOrAlways) {
    ASSERT_EQ(Unfilled(), "");
    for (const Row& row : kRows) {
        model->FailNth(row.request, 1, kFails);
        EXPECT_EQ(Make(row), "3-") << row.name;
        EXPECT_STREQ(model->LastFault(), row.name);
        EXPECT_EQ(Make(row), "S_OK") << row.name;
        model->FailAlways(row.request, kFails);
        EXPECT_EQ(Make(row) + Make(row), "3-3-") << row.name;
        model->ClearFaults();
        EXPECT_STREQ(model->LastFault(), "");
    }
    EXPECT_EQ(Unfilled(), "");
}

TEST_F(MemoryRequestsTest, ObjectsOutliveTheModelWithoutTheirLinks) {
    model->CloseCurrent();
    EXPECT_EQ(Unfilled(), "GetAllAnalysisCases E_FAIL-\nGetAnalysisModel E_FAIL-\nGetMeshManager E_FAIL-\n"
                          "GetCurrentAnalysisCaseSP S_OK-\n");
    EXPECT_EQ(model->References(), 14);
    EXPECT_EQ(load.References(), 1);
    model = nullptr;
    EXPECT_EQ(AnalysisServices::Installed(), nullptr);
    EXPECT_EQ(Unfilled(), "GetFather 3-\nGetOwner 3-\nGetAttrKey 3-\nGetOwningDocument 3-\n"
                          "ListAnalysisCases S_OK-\nFindObjectsOfType S_OK-\nListChildren S_OK-\nListMembers S_OK-\n"
                          "ListConnectors S_OK-\nGetGroup S_OK-\nGetMasterAndSlaveConnectors S_OK-\n"
                          "GetAllAnalysisCases E_FAIL-\nGetJobs E_FAIL-\nGetAnalysisModel E_FAIL-\n"
                          "GetMeshManager E_FAIL-\nIsTarnisAnalysisCase 3-\nGetParentStep E_FAIL-\n"
                          "GetParentCaseFromObject E_FAIL-\nIsObjectAProperty 3-\nIsObjectAnAmplitude 3-\n"
                          "GetCurrentAnalysisCaseSP E_FAIL-\n");
    EXPECT_EQ(MemoryModel::LiveObjects(), live + 10);
    held.clear();
    child.View(nullptr);
    key = nullptr;
    attribute = nullptr;
    EXPECT_EQ(MemoryModel::LiveObjects(), live);
    EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), allocations) << "the document or a key was not released";
}

} // namespace
