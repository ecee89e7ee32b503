#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

namespace {

class JobAndMeshPartNamesTest : public DocumentTest {
protected:
    static std::string Propose() {
        ZFXUnicodeString name("not read");
        EXPECT_EQ(QVRNameUtil::GetUniqueNameForJob(name), S_OK);
        return Text(name);
    }
};

TEST_F(JobAndMeshPartNamesTest, JobsAreNumberedOverAllCasesWhateverTheirLetters) {
    EXPECT_EQ(Propose(), "Job-1");
    MemoryFeature first = document.Case("First");
    MemoryFeature second = document.Case("Second");
    for (const char* name : {"Job-", "Job-x", "MyJob-7", ""})
        first.Job(name);
    EXPECT_EQ(Propose(), "Job-1");
    MemoryFeature job = first.Job("job-4");
    second.Job("JOB-2");
    second.Job("Job-1-copy");
    EXPECT_EQ(Propose(), "Job-5");
    second.Job("JOB-9").Without(IID_ZFXIAlias);
    EXPECT_EQ(Propose(), "Job-5");
    second.Job("jOB-2147483647");
    EXPECT_EQ(Propose(), "Job-3");

    const ZFXISpecObject_var self(job);
    const char* const duplicate = "DuplicateNameERR_03";
    EXPECT_EQ(ResultText(QVRNameUtil::IsUniqueNameForJob(self, "JOB-4")), "S_OK");
    EXPECT_EQ(ResultText(QVRNameUtil::IsUniqueNameForJob(self, "job-2")), duplicate);
    EXPECT_EQ(ResultText(QVRNameUtil::IsUniqueNameForJob(self, "job-")), duplicate); // the first of all
    EXPECT_EQ(ResultText(QVRNameUtil::IsUniqueNameForJob({}, "job-4")), duplicate);
    EXPECT_EQ(ResultText(QVRNameUtil::IsUniqueNameForJob(self, "")), duplicate); // as it is: one job has no name
    MemoryDocument other = model.NewDocument();
    model.MakeCurrent(other);
    EXPECT_EQ(ResultText(QVRNameUtil::IsUniqueNameForJob(self, "job-2")), "S_OK"); // the current document only
    EXPECT_EQ(Propose(), "Job-1");
}

TEST_F(JobAndMeshPartNamesTest, MeshPartsAreNumberedOverTheMeshManager) {
    MemoryFeature part = document.MeshPart("Mesh-1", 1);
    MemoryFeature seven = document.MeshPart("Mesh-7", 2);
    for (MemoryFeature feature : {part, seven}) { // the part itself counts
        ZFXISpecObject_var handle(feature);
        ZFXUnicodeString name("Mesh-");
        EXPECT_EQ(ResultText(QVRNameUtil::GetUniqueNameForMeshPart(handle, name)), "S_OK");
        EXPECT_EQ(Text(name), "Mesh-8");
    }
}

} // namespace
