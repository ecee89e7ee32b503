#include "support/ScopeTest.h"

#include <tuple>

namespace {

using UniquenessTest = ScopeTest;

TEST_F(UniquenessTest, FirstElementThatFailsDeterminesTheError) {
    MemoryFeature set = document.Model().Set("S");
    MemoryFeature feature = set.Feature("T", "Load-1");
    MemoryFeature twin = set.Feature("T", "LOAD-1");
    MemoryFeature other = set.Feature("T", "Load-2");
    MemoryFeature nameless = set.Feature("T", "x").Without(IID_ZFXIAlias);
    const std::tuple<const char*, std::vector<MemoryFeature>, MemoryFeature, const char*, const char*> rows[] = {
        {"only the feature itself", {feature, feature}, feature, "Load-1", "S_OK"},
        {"a clash before a nameless element", {twin, nameless}, feature, "load-1", kDuplicate},
        {"a nameless element before a clash", {nameless, twin}, feature, "load-1", "ZFXIAliasERR_01"},
        {"a nameless feature", {nameless, other}, nameless, "Load-1", "S_OK"},
        {"the stored name of a nameless feature", {}, nameless, "", "ZFXIAliasERR_01"},
        {"no feature", {other}, {}, "Load-2", kDuplicate},
        {"an empty handle in the list", {MemoryFeature()}, feature, "x", "ZFXIAliasERR_01"},
    };
    for (const auto& [situation, elements, subject, name, expected] : rows)
        EXPECT_EQ(ResultText(QVRNameUtil::IsNameUniqueInSet(ZFXISpecObject_var(subject), MakeList(elements), name)),
                  expected)
            << situation;
}

TEST_F(UniquenessTest, JobsAreComparedInTheFirstJobContainerOfEachCase) {
    MemoryFeature first = document.Case("First");
    MemoryFeature second = document.Case("Second");
    MemoryFeature job = first.Job("Job-1");
    document.Case("Without jobs");
    second.Job("Job-2");
    second.Add(MemoryKind::JobContainer, "QVRJobContainerLT", "").Feature("QVRJobLT", "In a second container");
    const auto check = [&](const char* name) { return Call(job, name, QVRNameUtil::IsNameUniqueAcrossCases); };
    EXPECT_EQ(check("JOB-2"), kDuplicate);
    EXPECT_EQ(check("Job-1"), "S_OK");
    EXPECT_EQ(check("In a second container"), "S_OK");
    model.FailNth(MemoryRequest::GetParentSets, 1, {3, false});
    EXPECT_EQ(check("JOB-2"), "3") << "the code of a request that returned no list";
    job = document.Model().Feature("QVRJobLT", "x").With(IID_ZFXISamAnalysisEntity);
    EXPECT_EQ(check("x"), "E_FAIL") << "an entity in no set";
}

} // namespace
