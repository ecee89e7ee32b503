#include "QVREFeatureAlias.h"
#include "QVRGenI18NUtils.h"

#include "support/ScopeTest.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <string_view>

namespace {

using Util = QVRNameUtil;
using I18N = QVRGenI18NUtils;

/// A document with an object for every operation, and one call of each operation.
struct Requests : ScopeTest {
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
    MemoryFeature connector = root.Add(MemoryKind::Connector, "C", "c").SetGroup(group);
    MemoryFeature support = root.Add(MemoryKind::Support, "S", "s").AddConnector(connector);
    MemoryFeature design = root.Add(MemoryKind::ConnectionDesign, "D", "d").AddMaster(connector).AddSlave(connector);
    I18N* utils = I18N::Instance();
    static constexpr MemoryResponse kOtherSuccess{3, true};

    /// Names two features. The first one is in the caches when the second one is named.
    template <class Operation>
    std::string Both(MemoryFeature first, MemoryFeature second, Operation operation) {
        const auto call = std::bind_front(operation, utils);
        const std::string result = Call(first, "", call);
        return result + ", " + Call(second, "", call);
    }
    static std::string ProposeTwo(MemoryFeature feature) {
        ZFXISamAnalysisCase_var current;
        ZFXListValZFXUnicodeString names;
        const std::string result = Call(feature, "P-", [&](auto& handle, auto& base) {
            return Util::GetUniqueNames(base, handle, current, 2, names);
        });
        return result + (names.Size() == 2 ? "|" + Narrow(names[1]) + "|" + Narrow(names[2]) : "");
    }
    std::string InSet() {
        const auto scope = MakeList({bolt, step, twin});
        return Call(bolt, "", [&](auto& handle, auto& name) { return Util::IsNameUniqueInSet(handle, scope, name); });
    }
};

struct Operation {
    const char* name;
    std::string (*call)(Requests& document);
};

void PrintTo(const Operation& operation, std::ostream* out) { *out << operation.name; }

// clang-format off
const Operation kOperations[] = {
    {"GetObjectName", [](Requests& d) { return Requests::Call(d.load, "x", Util::GetObjectName); }},
    {"GetMorvelObjectName", [](Requests& d) { return Requests::Call(d.bolt, "x", Util::GetMorvelObjectName); }},
    {"GetParentStepName", [](Requests& d) { return Requests::Call(d.load, "x", Util::GetParentStepName); }},
    {"GetSupportGroupName", [](Requests& d) { return Requests::Call(d.support, "x", [](auto& handle, auto& name) { return Util::GetSupportGroupName(handle, name); }); }},
    {"GetGrpNameofMasterAndSlave", [](Requests& d) { return Requests::GroupNames(d.design); }},
    {"GetNextUniqueName", [](Requests& d) { return Requests::Call("P-", [&](auto& name) { return Util::GetNextUniqueName(name, ZFXISamAnalysisSet_var(d.set)); }); }},
    {"GenerateUniqueName", [](Requests& d) { return Requests::Call(d.wide, "x", [](auto& handle, auto& name) { return handle == nullptr ? E_FAIL : Util::GenerateUniqueName(*handle.Get(), name); }); }},
    {"CreateBaseName", [](Requests& d) { return Requests::Call(d.load, "x", Util::CreateBaseName); }},
    {"IsNameUniqueInSet", [](Requests& d) { return d.InSet(); }},
    {"IsNameUniqueAcrossCases", [](Requests& d) { return Requests::Call(d.job, "job-2", Util::IsNameUniqueAcrossCases); }},
    {"GetUniqueNameForJob", [](Requests& /*d*/) { return Requests::Call("", Util::GetUniqueNameForJob); }},
    {"IsUniqueNameForJob", [](Requests& d) { return Requests::Call(d.job, "job-2", Util::IsUniqueNameForJob); }},
    {"GetUniqueNameForMeshPart", [](Requests& d) { return Requests::Call(d.part, "Mesh-", Util::GetUniqueNameForMeshPart); }},
    {"IsNameUnique, a step", [](Requests& d) { return Requests::Call(d.step, "step-2", Util::IsNameUnique); }},
    {"IsNameUnique, a load", [](Requests& d) { return Requests::Call(d.load, "load-2", Util::IsNameUnique); }},
    {"IsNameUnique, a section", [](Requests& d) { return Requests::Call(d.section, "p-2", Util::IsNameUnique); }},
    {"CheckName", [](Requests& d) { return Requests::Call(d.step, "", [](auto& handle, auto& name) { return Util::CheckName(handle, name, 1); }); }},
    {"CheckFileName", [](Requests& d) { return Requests::Call(d.section, "", Util::CheckFileName); }},
    {"GetUniqueName, a step", [](Requests& d) { return Requests::Propose(d.step, "Step-", {}); }},
    {"GetUniqueName, a section", [](Requests& d) { return Requests::Propose(d.section, "P-", d.analysisCase); }},
    {"GetUniqueName, a load", [](Requests& d) { return Requests::Propose(d.load, "Load-", d.analysisCase); }},
    {"GetUniqueNames, a step", [](Requests& d) { return Requests::ProposeTwo(d.step); }},
    {"GetUniqueNames, a section", [](Requests& d) { return Requests::ProposeTwo(d.section); }},
    {"GetUniqueNames, a load", [](Requests& d) { return Requests::ProposeTwo(d.load); }},
    {"GetGenericEnglishName", [](Requests& d) { return Requests::Call(d.section2, "x", std::bind_front(&I18N::GetGenericEnglishName, d.utils)); }},
    {"GetGenericEnglishFeatureName", [](Requests& d) { return d.Both(d.steel, d.steel2, &I18N::GetGenericEnglishFeatureName); }},
    {"GetFeatureName", [](Requests& d) { return d.Both(d.steel, d.steel2, &I18N::GetFeatureName); }},
    {"GetMaterialName", [](Requests& d) { return d.Both(d.steel, d.steel2, &I18N::GetMaterialName); }},
    {"GetGenericEnglishMaterialName", [](Requests& d) { return d.Both(d.steel, d.steel2, &I18N::GetGenericEnglishMaterialName); }},
    {"GetUniqueLegalInstanceName", [](Requests& d) { return Requests::InstanceNames(d.widePart); }},
    {"SetAlias, refused", [](Requests& d) { return Requests::Rename(d.step.Alias("Step-1"), "1.0"); }},
    {"SetAlias, stored", [](Requests& d) { return Requests::Rename(d.section.Alias("P-1"), " P-3_"); }},
    {"SetAlias, emptied", [](Requests& d) { return Requests::Rename(d.section.Alias("P-1"), " _"); }},
    {"SetAlias, a job", [](Requests& d) { return Requests::Rename(d.job.Alias("Job-1"), "job-2"); }},
};
// clang-format on

/// The rows of MessageIds.def: a message id, and ", " before and after each operation that raises it.
const std::pair<std::string_view, std::string_view> kRaisedBy[] = {
#define MESSAGE_ID(id, raisedBy) {#id, ", " raisedBy ", "},
#include "MessageIds.def"
#undef MESSAGE_ID
};

HRESULT RegisterMarker() {
    return ZFXError::GetReturn(ZFXErrorTypeInput, new ZFXInputError("Marker", ""), nullptr, "", 0);
}

/// Calls an operation and returns its result. Expects that MessageIds.def lists the operation for each error that it
/// registers. `name` is the name of the operation and may continue after a comma.
template <class Call>
auto RaisesOnlyItsMessages(std::string_view name, Call call) {
    const std::string operation = ", " + std::string(name.substr(0, name.find(','))) + ", ";
    const HRESULT before = RegisterMarker();
    auto result = call();
    const HRESULT after = RegisterMarker();
    EXPECT_GT(after, before);
    for (HRESULT code = before + 1; code < after; ++code) { // codes are consecutive
        const ZFXError* error = ZFXError::ZFXGetLastError(code, nullptr);
        const std::string_view id = error == nullptr ? "no error" : error->GetMsgId();
        const bool listed = std::ranges::any_of(kRaisedBy, [&](const auto& row) {
            return row.first == id && row.second.find(operation) != row.second.npos;
        });
        EXPECT_TRUE(listed) << name << " raises " << id;
    }
    return result;
}

/// Counts the requests of one operation and injects four responses into each. Compares the number and the results with
/// failing-requests.txt.
/// To regenerate that file, run module-tests with QVR_WRITE_EXPECTED=1 and examine the difference.
struct FailingRequestsTest : Requests, ::testing::WithParamInterface<Operation> {
    /// Returns the result, and the number of references that the singleton has.
    std::string Result() {
        std::string result = RaisesOnlyItsMessages(GetParam().name, [&] { return GetParam().call(*this); });
        if (const long kept = model.References(); kept != 0)
            result += " +" + std::to_string(kept);
        utils->ResetAllLists();
        EXPECT_EQ(model.References(), 0) << result;
        return result;
    }
    /// Returns the section with this heading in the file of expected results.
    static std::string Expected(const std::string& heading) {
        const std::string text = TextOf(kExpected);
        const std::size_t begin = text.find(heading);
        return begin == std::string::npos ? "" : text.substr(begin, text.find("\n\n", begin) - begin + 1);
    }

    static constexpr const char* kExpected = SOURCE_ROOT "/tests/module/failing-requests.txt";
};

TEST_P(FailingRequestsTest, GiveTheExpectedResult) {
    for (int i = 0; i < ZFXError::kRegistered; ++i) // from now on each new error replaces the oldest one
        EXPECT_EQ(Call({}, "", Util::CheckFileName), "ZFXIAliasERR_01");
    const std::string normal = Result();
    const long before = model.Requests();
    EXPECT_EQ(Result(), normal);
    const long requests = model.Requests() - before;
    ASSERT_GT(requests, 0);
    const long live = ZFXBaseUnknown::LiveAllocations();
    const std::string heading = std::string("[") + GetParam().name + "]\n";
    std::string text = heading + "no failure: " + normal + ", requests: " + std::to_string(requests) + "\n";
    std::map<std::string, int> occurrences;
    for (long k = 1; k <= requests; ++k) {
        std::string request;
        std::string results;
        for (const auto& [way, response] :
             {std::pair("fails", kFailure), std::pair("fails, filled", kFailureWithOutput),
              std::pair("succeeds, empty", kSuccessWithoutOutput), std::pair("returns 3", kOtherSuccess)}) {
            model.FailNth(MemoryRequest::Any, k, response);
            const std::string result = Result();
            request = model.LastFault();
            model.ClearFaults();
            if (result != normal)
                results += "\n    " + (way + (": " + result));
            EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), live) << "request " << k << " " << way;
            EXPECT_EQ(Result(), normal) << "after request " << k << " " << way;
        }
        if (const int occurrence = ++occurrences[request]; !results.empty())
            text += request + " " + std::to_string(occurrence) + results + "\n";
    }
    if (std::getenv("QVR_WRITE_EXPECTED") != nullptr) { // NOLINT(concurrency-mt-unsafe): there is one thread
        const bool isFirst = GetParam().name == std::string_view(kOperations[0].name);
        std::ofstream(kExpected, isFirst ? std::ios::trunc : std::ios::app) << text << "\n";
    }
    EXPECT_EQ(text, Expected(heading));
}

TEST_F(Requests, ChecksOfTextsRaiseOnlyTheirMessages) {
    ZFXISpecObject_var feature(step);
    ZFXUnicodeString out;
    const std::string tooLong(73, 'a');
    const std::pair<const char*, std::function<HRESULT(ZFXUnicodeString&)>> checks[] = {
        {"IsNameValid", [](auto& name) { return Util::IsNameValid(name, 1); }},
        {"IsFileNameValid", Util::IsFileNameValid},
        {"CheckName", [&](auto& name) { return Util::CheckName(feature, name, 1); }},
        {"CheckFileName", [&](auto& name) { return Util::CheckFileName(feature, name); }},
        {"SetAlias", [&](auto& name) { return Rename(step.Alias("Step-1"), name), S_OK; }},
        {"DoesNameContainDoubleByteChar", [&](auto& name) { return Util::DoesNameContainDoubleByteChar(name, out); }},
        {"DoesNameContainSignedChar", [&](auto& name) { return Util::DoesNameContainSignedChar(name, out); }},
        {"GetTARNISCompliantFeatureName",
         [&](auto& name) { return utils->GetTARNISCompliantFeatureName(name, "G", out); }},
    };
    for (ZFXUnicodeString name : {"", "1", "a.", "a b", "ä", "厚", "step-2", tooLong.c_str()})
        for (const auto& check : checks)
            RaisesOnlyItsMessages(check.first, [&] { return check.second(name); });
    utils->ResetAllLists();
}

INSTANTIATE_TEST_SUITE_P(Each, FailingRequestsTest, ::testing::ValuesIn(kOperations), [](const auto& operation) {
    std::string name = operation.param.name;
    std::erase_if(name, [](unsigned char c) { return std::isalnum(c) == 0; });
    return name;
});

} // namespace
