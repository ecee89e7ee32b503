#include "QVREFeatureAlias.h"
#include "QVRGenI18NUtils.h"
#include "QVRGenInstanceName.h"
#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

#include <functional>
#include <map>

namespace {

using Util = QVRNameUtil;
using I18N = QVRGenI18NUtils;

/// Every operation that asks the document something, on a document that gives each of them all it asks for.
class FailingRequestsTest : public DocumentTest {
protected:
    MemoryFeature analysisCase = document.Case("Static");
    MemoryFeature step = analysisCase.Step("QVRStaticLPStepLT", "Step-1");
    MemoryFeature step2 = analysisCase.Step("QVRStaticLPStepLT", "Step-2");
    MemoryFeature load = step.Set("QVRLoadContainerLT").Feature("QVRPressure", "Load.1");
    MemoryFeature load2 = step2.Set("QVRLoadContainerLT").Feature("QVRPressure", "Load-2");
    MemoryFeature set = document.PropertySet();
    MemoryFeature section = set.Feature("QVRShellSectionEnhLT", "P-1");
    MemoryFeature wide = set.Feature("SAMThickness", "厚");
    MemoryFeature section2 = set.Feature("QVRShellSectionEnhLT", "P-2");
    MemoryFeature job = analysisCase.Job("Job-1");
    MemoryFeature job2 = document.Case("Second").Job("Job-2");
    MemoryFeature part = document.MeshPart("Mesh-1", 3);
    MemoryFeature widePart = document.MeshPart("部品", 4);
    MemoryFeature root = document.Model();
    MemoryFeature father = root.Feature("Connection", "Father").With(IID_ZFXISamAnalysisScan);
    MemoryFeature bolt = father.Feature("SAMBoltTightening", "Bolt.1");
    MemoryFeature twin = father.Feature("T", "bolt.1");
    MemoryFeature steel = root.Add(MemoryKind::Material, "M.1", "Steel.1").MaterialName("Iron");
    MemoryFeature steel2 = root.Add(MemoryKind::Material, "M.1", "Steel.1").MaterialName("Iron");
    MemoryFeature group = root.Add(MemoryKind::Group, "G", "Group.1");
    MemoryFeature connector = root.Add(MemoryKind::Connector, "C", "c").LeadTo(group);
    MemoryFeature support = root.Add(MemoryKind::Support, "S", "s").Connect(connector);
    MemoryFeature design = root.Add(MemoryKind::ConnectionDesign, "D", "d").Master(connector).Slave(connector);
    I18N* utils = I18N::Instance();
    static constexpr MemoryAnswer kOther{3, true};

    /// The code of an operation, and the text that it gave: "E_FAIL" alone left `text` as it was.
    template <class Operation>
    static std::string Ask(const char* text, Operation operation) {
        ZFXUnicodeString name(text);
        const HRESULT code = operation(name);
        return (code == kCode ? "code" : Said(code)) + (name == text ? "" : "|" + Text(name));
    }
    template <class Operation>
    static std::string Ask(MemoryFeature feature, const char* text, Operation operation) {
        ZFXISpecObject_var handle(feature);
        return Ask(text, [&](ZFXUnicodeString& name) { return operation(handle, name); });
    }
    /// Two features in turn, of which the caches remember the first.
    template <class Operation>
    std::string Both(MemoryFeature first, MemoryFeature second, Operation operation) {
        const auto ask = std::bind_front(operation, utils);
        const std::string answer = Ask(first, "", ask);
        return answer + ", " + Ask(second, "", ask);
    }
    std::string Propose(MemoryFeature feature, const char* base, MemoryFeature scope) {
        return Ask(feature, base, [&](auto& handle, auto& name) {
            ZFXISamAnalysisCase_var given(scope);
            Util::GetUniqueName(name, handle, given);
            return S_OK;
        });
    }
    /// What is stored after a renaming, and how the console told of it.
    static std::string Rename(MemoryFeature feature, const char* former, const char* name) {
        feature.Alias(former);
        const std::string console = Console([&] {
            if (const ZFXIAlias_var alias(feature); alias != nullptr)
                alias->SetAlias(name);
        });
        return Text(feature.StoredAlias()) + "|" + console.substr(0, console.find(':'));
    }
    std::string Group() {
        return Ask(support, "x", [](auto& handle, auto& name) { return Util::GetSupportGroupName(handle, name); });
    }
    std::string Sides() {
        QVRISamAnalysisConnectionDesign_var handle(design);
        ZFXUnicodeString slave("s");
        const std::string master =
            Ask("m", [&](auto& name) { return Util::GetGrpNameofMasterAndSlave(handle, name, slave); });
        return master + "|" + Text(slave);
    }
    std::string Next() {
        const ZFXISamAnalysisSet_var handle(set);
        return Ask("P-", [&](auto& name) { return Util::GetNextUniqueName(name, handle); });
    }
    std::string Generate() {
        return Ask(wide, "x", [](auto& handle, auto& name) {
            return handle == nullptr ? E_FAIL : Util::GenerateUniqueName(*handle.Get(), name);
        });
    }
    std::string InSet() {
        const auto scope = ListOf({bolt, step, twin});
        return Ask(bolt, "", [&](auto& handle, auto& name) { return Util::IsNameUniqueInSet(handle, scope, name); });
    }
    std::string Checked() {
        return Ask(step, "", [](auto& handle, auto& name) { return Util::CheckName(handle, name, 1); });
    }
    std::string Instance() {
        const ZFXIMSHMeshPart_var handle(widePart);
        ZFXUnicodeString second("p");
        const std::string first =
            Ask("i", [&](auto& name) { return QVRGenInstanceName::GetUniqueLegalInstanceName(handle, name, second); });
        return first + "|" + Text(second);
    }
};

TEST_F(FailingRequestsTest, GiveAStatedAnswerAndLeaveNothingBehind) {
    /// Each other answer, and the requests that lead to it. One without a mark gives nothing, whether it fails or not;
    /// "-" fails and gives nothing, "+" fails and gives all, "0" succeeds and gives nothing, ">" gives all and succeeds
    /// with another code than 0.
    using Others = std::map<std::string, std::string>;
    struct Row {
        const char* operation;
        std::function<std::string()> run;
        std::string answer; // when no request fails
        Others others;
    };
    const char* const duplicate = "DuplicateNameERR_02 -100";
    // clang-format off
    const Row rows[] = {
        {"GetObjectName", [&] { return Ask(load, "x", Util::GetObjectName); }, "S_OK|Load.1", {{"E_FAIL", "Cast"},
          {"E_FAIL|", "Cast"}, {"S_OK|", "GetAlias"}}},
        {"GetMorvelObjectName", [&] { return Ask(bolt, "x", Util::GetMorvelObjectName); },
         "DuplicateZFXNameERR_01|Bolt-1", {{"E_FAIL", "Cast"}, {"NameLengthERR_02|", "GetAlias"},
          {"ParentERR_01|Bolt-1", "Cast GetFather"}, {"S_OK|Bolt-1", "GetAlias GetLateType ListChildren"},
          {"ZFXIAliasERR_01", "Cast"}}},
        {"GetParentStepName", [&] { return Ask(load, "x", Util::GetParentStepName); }, "S_OK|Step-1",
         {{"3|Step-1", "GetParentStep>"}, {"E_FAIL", "Cast"}, {"E_FAIL|", "Cast"},
          {"S_OK|", "Cast GetAttrKey GetParentStep0 GetString"}, {"code|", "GetParentStep-+"}}},
        {"GetSupportGroupName", [&] { return Group(); }, "S_OK|Group-1", {{"E_FAIL|", "Cast GetGroup"},
          {"S_OK|", "Cast GetAlias ListConnectors"}}},
        {"GetGrpNameofMasterAndSlave", [&] { return Sides(); }, "S_OK|Group-1|Group-1", {{"E_FAIL|s", "Cast"},
          {"S_OK|Group-1|", "Cast GetAlias GetGroup"}, {"S_OK|s", "GetMasterAndSlaveConnectors"},
          {"S_OK||Group-1", "Cast GetAlias GetGroup"}}},
        {"GetNextUniqueName", [&] { return Next(); }, "S_OK|P-3", {{"E_FAIL", "Cast ListMembers-+"},
          {"S_OK|P-1", "ListMembers0"}, {"S_OK|P-2", "Cast GetAttrKey GetString"}}},
        {"GenerateUniqueName", [&] { return Generate(); }, "S_OK|SAMThickness", {{"E_FAIL", "Cast"},
          {"S_OK|", "GetAlias"}, {"S_OK|厚", "GetLateType"}}},
        {"CreateBaseName", [&] { return Ask(load, "x", Util::CreateBaseName); }, "S_OK|Pressure-", {{"E_FAIL", "Cast"},
          {"S_OK", "GetLateType"}}},
        {"IsNameUniqueInSet", [&] { return InSet(); }, duplicate, {{"S_OK", "GetAlias"}, {"ZFXIAliasERR_01", "Cast"}}},
        {"IsNameUniqueAcrossCases", [&] { return Ask(job, "job-2", Util::IsNameUniqueAcrossCases); }, duplicate,
         {{"E_FAIL", "Cast GetFather"},
          {"S_OK", "Cast FindObjectsOfType GetAttrKey GetParentSets0 GetString ListAnalysisCases ListMembers0"},
          {"ZFXIAliasERR_01", "Cast"}, {"code", "GetParentSets-+ ListMembers-+"}}},
        {"GetUniqueNameForJob", [&] { return Ask("", Util::GetUniqueNameForJob); }, "S_OK|Job-3",
         {{"S_OK|Job-1", "GetAllAnalysisCases GetJobs"}, {"S_OK|Job-2", "Cast GetAttrKey GetString"}}},
        {"IsUniqueNameForJob", [&] { return Ask(job, "job-2", Util::IsUniqueNameForJob); }, "DuplicateNameERR_03",
         {{"S_OK", "Cast GetAllAnalysisCases GetAttrKey GetJobs GetString"}}},
        {"GetUniqueNameForMeshPart", [&] { return Ask(part, "Mesh-", Util::GetUniqueNameForMeshPart); }, "S_OK|Mesh-2",
         {{"MeshPartUniqueNameERR", "Cast GetMeshManager-+0 GetOwningDocument ListMembers-+"},
          {"S_OK|Mesh-1", "Cast GetAlias ListMembers0"}}},
        {"IsNameUnique, a step", [&] { return Ask(step, "step-2", Util::IsNameUnique); }, "DuplicateNameERR_01",
         {{"S_OK", "Cast GetAttrKey GetString ListChildren0"},
          {"StepParentERR_01", "Cast GetLateType GetOwner ListPointingAttributes"},
          {"StepParentERR_02", "Cast ListChildren-+"}, {"ZFXIAliasERR_01", "Cast"}}},
        {"IsNameUnique, a load", [&] { return Ask(load, "load-2", Util::IsNameUnique); }, duplicate,
         {{"AnalysisCaseERR_03", "FindObjectsOfType-+0"}, {"E_FAIL", "Cast GetParentSets-+0"},
          {"ObjectParentERR_01", "Cast GetParentCaseFromObject0"},
          {"S_OK", "Cast FindObjectsOfType0 GetAlias GetLateType ListChildren0 ListMembers"},
          {"ZFXIAliasERR_01", "Cast"}, {"code", "FindObjectsOfType-+ ListChildren-+"}}},
        {"IsNameUnique, a section", [&] { return Ask(section, "p-2", Util::IsNameUnique); }, duplicate,
         {{"E_FAIL", "Cast"}, {"S_OK", "Cast GetAttrKey GetParentSets0 GetString ListMembers0"},
          {"ZFXIAliasERR_01", "Cast"}, {"code", "GetParentSets-+ ListMembers-+"}}},
        {"CheckName", [&] { return Checked(); }, "S_OK", {{"NameLengthERR_02", "Cast GetAttrKey GetString"},
          {"StepParentERR_01", "Cast GetLateType GetOwner ListPointingAttributes"},
          {"StepParentERR_02", "Cast ListChildren-+"}, {"ZFXIAliasERR_01", "Cast"}}},
        {"CheckFileName", [&] { return Ask(section, "", Util::CheckFileName); }, "S_OK", {{"E_FAIL", "Cast"},
          {"ZFXIAliasERR_01", "Cast"}, {"code", "GetParentSets-+ ListMembers-+"}}},
        {"GetUniqueName, a step", [&] { return Propose(step, "Step-", {}); }, "S_OK|Step-3",
         {{"S_OK", "Cast FindObjectsOfType-+0 GetCurrentAnalysisCaseSP-+0 IsTarnisAnalysisCase ListChildren-+"},
          {"S_OK|Step-1", "Cast GetAttrKey GetString ListChildren0"}}},
        {"GetUniqueName, a section", [&] { return Propose(section, "P-", analysisCase); }, "S_OK|P-3",
         {{"S_OK", "Cast FindObjectsOfType GetAnalysisModel-+0 GetOwningDocument ListMembers-+"},
          {"S_OK|P-1", "IsObjectAProperty ListMembers0"}, {"S_OK|P-2", "Cast GetAttrKey GetString"}}},
        {"GetUniqueName, a load", [&] { return Propose(load, "Load-", analysisCase); }, "S_OK|Load-3",
         {{"S_OK", "Cast FindObjectsOfType-+0 GetParentSets-+0 ListChildren-+"},
          {"S_OK|Load-1", "Cast FindObjectsOfType0 GetAlias GetLateType ListChildren0 ListMembers"}}},
        {"GetGenericEnglishName", [&] { return Ask(section2, "x", std::bind_front(&I18N::GetGenericEnglishName, utils)); },
         "S_OK|QVRShellSectionEnhLT-3", {{"GetGenericEnglishNameERR_01", "Cast GetFather ListMembers-+0"},
          {"S_OK|-3", "GetLateType"}}},
        {"GetGenericEnglishFeatureName", [&] { return Both(steel, steel2, &I18N::GetGenericEnglishFeatureName); },
         "S_OK|M1-1, S_OK|M1-2 +2", {{"E_FAIL, S_OK|M1-1 +1", "Cast"}, {"S_OK|-1, S_OK|M1-1 +2", "GetLateType"},
          {"S_OK|M1-1, E_FAIL +1", "Cast"}, {"S_OK|M1-1, S_OK|-1 +2", "GetLateType"}}},
        {"GetFeatureName", [&] { return Both(steel, steel2, &I18N::GetFeatureName); }, "S_OK|Steel1, S_OK|Steel1-1 +2",
         {{"E_FAIL, S_OK|Steel1 +1", "Cast"}, {"S_OK, S_OK|Steel1-1 +2", "GetAlias"},
          {"S_OK|Steel1, E_FAIL +1", "Cast"}, {"S_OK|Steel1, S_OK +2", "GetAlias"},
          {"S_OK|Steel1, S_OK|Steel1 +2", "GetAlias"}}},
        {"GetMaterialName", [&] { return Both(steel, steel2, &I18N::GetMaterialName); }, "S_OK|Iron, S_OK|Iron-1 +2",
         {{"E_FAIL, S_OK|Iron +1", "Cast"}, {"S_OK, S_OK|Iron-1 +2", "GetMaterialFeatureName"},
          {"S_OK|Iron, E_FAIL +1", "Cast"}, {"S_OK|Iron, S_OK +2", "GetMaterialFeatureName"},
          {"S_OK|Iron, S_OK|Iron +2", "Cast GetMaterialFeatureName"}, {"S_OK|Iron, S_OK|Steel-1 +2", "Cast"},
          {"S_OK|Steel-1, S_OK|Iron-1 +2", "Cast"}}},
        {"GetGenericEnglishMaterialName", [&] { return Both(steel, steel2, &I18N::GetGenericEnglishMaterialName); },
         "S_OK|M-1-1, S_OK|M-1-2 +2", {{"E_FAIL, S_OK|M-1-1 +1", "Cast"}, {"S_OK|-1, S_OK|M-1-2 +2", "GetLateType"},
          {"S_OK|M-1-1, E_FAIL +1", "Cast"}, {"S_OK|M-1-1, S_OK|-2 +2", "GetLateType"}}},
        {"GetUniqueLegalInstanceName", [&] { return Instance(); },
         "S_OK|Instance4-MSHPartOctree3D-2|Part4-MSHPartOctree3D-2", {{"E_FAIL|p", "Cast GetExplicitChild-+0"},
          {"GetGenericEnglishNameERR_01|p", "Cast GetFather ListMembers-+0"},
          {"S_OK|Instance0-MSHPartOctree3D-2|Part0-MSHPartOctree3D-2", "GetTag0"},
          {"S_OK|Instance4--2|Part4--2", "GetLateType"}, {"S_OK|Instance4|Part4", "GetAlias"}, {"code|p", "GetTag-+"}}},
        {"SetAlias, refused", [&] { return Rename(step, "Step-1", "1.0"); }, "Step-1|NAME ERROR",
         {{"1.0|NAME ERROR", "Cast GetAttrKey SetString"}, {"Step-1|", "Cast"},
          {"|NAME ERROR", "Cast GetAttrKey GetString"}}},
        {"SetAlias, stored", [&] { return Rename(section, "P-1", " P-3_"); }, "P-3|",
         {{"P-1|", "Cast GetParentSets-+ ListMembers-+"}, {"P-1|NAME ERROR", "Cast"}}},
        {"SetAlias, emptied", [&] { return Rename(section, "P-1", " _"); }, "P-1|NAME ERROR",
         {{"P-1|", "Cast GetParentSets-+ ListMembers-+"}, {"|", "Cast GetAttrKey SetString"},
          {"|NAME ERROR", "Cast GetAttrKey GetString SetString"}}},
        {"SetAlias, a job", [&] { return Rename(job, "Job-1", "job-2"); }, "Job-1|NAME ERROR",
         {{"Job-1|", "Cast GetFather GetParentSets-+ ListMembers-+"},
          {"job-2|", "Cast FindObjectsOfType GetAttrKey GetLateType GetParentSets0 GetString ListAnalysisCases ListMembers0"},
          {"job-2|NAME ERROR", "Cast GetAttrKey SetString"}, {"|NAME ERROR", "Cast GetAttrKey GetString"}}},
    };
    // clang-format on
    const auto answerOf = [&](const Row& row) {
        std::string answer = row.run();
        if (const long remembered = model.References(); remembered != 0)
            answer += " +" + std::to_string(remembered);
        utils->ResetAllLists();
        EXPECT_EQ(model.References(), 0) << row.operation << ": " << answer;
        return answer;
    };
    for (int i = 0; i < ZFXError::kRegistered; ++i) // from now on each error takes the place of another
        EXPECT_EQ(Ask({}, "", Util::CheckFileName), "ZFXIAliasERR_01");
    for (const Row& row : rows) {
        const long before = model.Requests();
        EXPECT_EQ(answerOf(row), row.answer) << row.operation;
        const long requests = model.Requests() - before;
        ASSERT_GT(requests, 0) << row.operation;
        const long live = ZFXBaseUnknown::LiveAllocations();
        std::map<std::string, std::map<std::string, std::string>> marks; // by answer and request
        for (const auto& [mark, fault] :
             {std::pair("-", kFails), std::pair("+", kFailsFilled), std::pair("0", kEmpty), std::pair(">", kOther)})
            for (long k = 1; k <= requests; ++k) {
                model.AnswerOnce(MemoryRequest::Any, k, fault);
                std::string& marked = marks[answerOf(row)][model.LastTold()];
                marked += marked.ends_with(mark) ? "" : mark;
                model.Heal();
                EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), live) << row.operation << ", request " << k;
                EXPECT_EQ(answerOf(row), row.answer) << row.operation << " after request " << k;
            }
        marks.erase(row.answer);
        Others others;
        for (const auto& [answer, requestsOfIt] : marks)
            for (const auto& [request, marked] : requestsOfIt)
                others[answer] += (others[answer].empty() ? "" : " ") + request + (marked == "-0" ? "" : marked);
        EXPECT_EQ(others, row.others) << row.operation;
    }
}

} // namespace
