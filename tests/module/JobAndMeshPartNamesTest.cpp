#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

namespace {

struct JobAndMeshPartNamesTest : DocumentTest {
    static std::string Propose() { return Call("ignored", QVRNameUtil::GetUniqueNameForJob); }
    static std::string Check(MemoryFeature job, const char* name) {
        return Call(job, name, QVRNameUtil::IsUniqueNameForJob);
    }

    MemoryFeature first = document.Case("First");
    MemoryFeature second = document.Case("Second");
    MemoryDocument other = model.NewDocument();
};

TEST_F(JobAndMeshPartNamesTest, JobNumberFollowsTheHighestOfAllCases) {
    for (const char* name : {"Job-", "Job-x", "MyJob-7", ""})
        first.Job(name);
    EXPECT_EQ(Propose(), "S_OK|Job-1");
    first.Job("job-4"); // letter case is ignored
    for (const char* name : {"JOB-2", "Job-1-copy"})
        second.Job(name);
    EXPECT_EQ(Propose(), "S_OK|Job-5");
    second.Job("jOB-2147483647");
    EXPECT_EQ(Propose(), "S_OK|Job-3");
    model.MakeCurrent(other);
    EXPECT_EQ(Propose(), "S_OK|Job-1") << "only the current document counts";
}

TEST_F(JobAndMeshPartNamesTest, JobNameIsComparedLiterallyWithOtherJobs) {
    first.Job("");
    MemoryFeature job = first.Job("job-4");
    const char* const duplicate = "DuplicateNameERR_03";
    EXPECT_EQ(Check(job, "JOB-4"), "S_OK") << "its own name";
    EXPECT_EQ(Check(job, ""), duplicate) << "an empty name clashes with an unnamed job";
    EXPECT_EQ(Check({}, "job-4"), duplicate);
}

} // namespace
