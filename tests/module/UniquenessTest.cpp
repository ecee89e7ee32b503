#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

#include <tuple>

namespace {

class UniquenessTest : public DocumentTest {};

TEST_F(UniquenessTest, TheFirstElementThatFailsDecides) {
    MemoryFeature set = document.Model().Set("S");
    MemoryFeature feature = set.Feature("T", "Load-1");
    MemoryFeature twin = set.Feature("T", "LOAD-1");
    MemoryFeature other = set.Feature("T", "Load-2");
    MemoryFeature nameless = set.Feature("T", "x").Without(IID_ZFXIAlias);
    const char* const duplicate = "DuplicateNameERR_02 -100";
    const std::tuple<const char*, std::vector<MemoryFeature>, MemoryFeature, const char*, const char*> rows[] = {
        {"nothing in scope", {}, feature, "Load-1", "S_OK"},
        {"itself only, twice", {feature, feature}, feature, "Load-1", "S_OK"},
        {"apart from case", {feature, twin}, feature, "Load-1", duplicate},
        {"own name asked for", {twin}, feature, "", duplicate},
        {"another name", {other}, feature, "Load-1", "S_OK"},
        {"clash before nameless", {twin, nameless}, feature, "load-1", duplicate},
        {"nameless before clash", {nameless, twin}, feature, "load-1", "ZFXIAliasERR_01"},
        {"nameless itself", {nameless, other}, nameless, "Load-1", "S_OK"},
        {"nameless itself, own name", {}, nameless, "", "ZFXIAliasERR_01"},
        {"no feature", {other}, {}, "Load-2", duplicate},
        {"an empty handle in the list", {MemoryFeature()}, feature, "x", "ZFXIAliasERR_01"},
    };
    for (const auto& [why, elements, judged, name, said] : rows) {
        ZFXListValZFXBaseUnknown_var scope;
        for (const MemoryFeature& element : elements)
            scope.Append(ZFXBaseUnknown_var(element));
        EXPECT_EQ(ResultText(QVRNameUtil::IsNameUniqueInSet(ZFXISpecObject_var(judged), scope, name)), said) << why;
    }
}

TEST_F(UniquenessTest, JobsAreComparedAcrossTheCasesOfTheirModel) {
    MemoryFeature first = document.Case("First");
    MemoryFeature second = document.Case("Second");
    MemoryFeature job = first.Job("Job-1");
    document.Case("Without jobs");
    second.Job("Job-2");
    second.Add(MemoryKind::JobContainer, "QVRJobContainerLT", "").Feature("QVRJobLT", "In a second container");
    const auto check = [&](const char* name) {
        ZFXISpecObject_var feature(job);
        return ResultText(QVRNameUtil::IsNameUniqueAcrossCases(feature, name));
    };
    EXPECT_EQ(check("JOB-2"), "DuplicateNameERR_02 -100");
    EXPECT_EQ(check("Job-1"), "S_OK");
    EXPECT_EQ(check("In a second container"), "S_OK");
    EXPECT_EQ(check(""), "S_OK");

    model.FailNth(MemoryRequest::GetParentSets, 1, {3, false}); // no list
    EXPECT_EQ(check("JOB-2"), "3");
    job = document.Model().Feature("QVRJobLT", "No entity");
    EXPECT_EQ(check("Job-2"), "S_OK");
    job.With(IID_ZFXISamAnalysisEntity); // an entity that no set holds
    EXPECT_EQ(check("x"), "E_FAIL");
}

} // namespace
