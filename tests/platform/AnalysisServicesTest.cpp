#include "analysis/WorkbenchUtilities.h"
#include "memory-model/MemoryModel.h"

#include <gtest/gtest.h>

namespace {

TEST(AnalysisServices, AnswerNothingWhenNoneAreInstalled) {
    { MemoryModel installedAndGone; }
    ASSERT_EQ(AnalysisServices::Installed(), nullptr);
    ZFXListValZFXBaseUnknown_var cases;
    ZFXListValZFXISpecObject_var jobs;
    ZFXISamAnalysisModel_var model;
    ZFXIMSHMeshManager_var manager;
    ZFXISamAnalysisCase_var analysisCase;
    ZFXISpecObject_var feature;
    EXPECT_EQ(QVRAnalysisDocUtils::GetAllAnalysisCases(cases, nullptr), E_FAIL);
    EXPECT_EQ(QVRAnalysisDocUtils::GetJobs(cases, jobs), E_FAIL);
    EXPECT_EQ(QVRAnalysisDocUtils::GetAnalysisModel(model, nullptr), E_FAIL);
    EXPECT_EQ(QVRAnalysisDocUtils::GetMeshManager(manager, nullptr), E_FAIL);
    EXPECT_EQ(QVRAnalysisDocUtils::IsTarnisAnalysisCase(analysisCase), 0);
    EXPECT_EQ(QVRAnalysisEntityUtils::GetParentStep(feature, feature), E_FAIL);
    EXPECT_EQ(QVRAnalysisEntityUtils::GetParentCaseFromObject(feature, feature), E_FAIL);
    EXPECT_EQ(QVRAnalysisEntityUtils::IsObjectAProperty(feature), 0);
    EXPECT_EQ(QVRAnalysisEntityUtils::IsObjectAnAmplitude(feature), 0);
    EXPECT_EQ(QVRStepUtils::GetCurrentAnalysisCaseSP(analysisCase, nullptr), E_FAIL);
}

} // namespace
