#include "QVREFeatureAlias.h"

#include "LateTypes.h"
#include "support/DocumentTest.h"

#ifndef _WIN32
#include <dlfcn.h>

namespace {
int allocationsUntilFailure = 0; // 0: no allocation fails
}

/// Replaces the allocator of the platform library for the module, so that one allocation can fail.
void* ZFXBaseUnknown::operator new(std::size_t size) noexcept {
    static const auto original = reinterpret_cast<void* (*)(std::size_t)>(dlsym(RTLD_NEXT, "_ZN14ZFXBaseUnknownnwEm"));
    const bool fails = allocationsUntilFailure > 0 && --allocationsUntilFailure == 0;
    return fails ? nullptr : original(size);
}
#endif

namespace {

struct FeatureAliasTest : DocumentTest {
    MemoryFeature analysisCase = document.Case("Static");
    MemoryFeature step = analysisCase.Step("QVRStaticLPStepLT", "Step-1");
    MemoryFeature other = analysisCase.Step("QVRStaticLPStepLT", "step");
};

TEST_F(FeatureAliasTest, StoresATrimmedNameThatPassesTheChecks) {
    const std::string console = CapturedOutput([&] { ZFXIAlias_var(step)->SetAlias(" Step_ "); });
    EXPECT_EQ(console, "NAME ERROR: Another step of this analysis case already has the name; capital and small letters "
                       "count as the same. Choose a name that no step of the case has.\n");
    EXPECT_EQ(ZFXIAlias_var(step)->GetAlias(), "Step-1");
    EXPECT_EQ(Rename(step, "  _ _Lo ad__ "), " _Lo ad|"); // spaces first, then underscores, each once
    EXPECT_EQ(Rename(step, "Tr\xC3\xA4ger"), "Träger|");
    for (const char* rejected : {"", " __ ", "1st", "a.b", "日本"})
        EXPECT_EQ(Rename(step, rejected), "Träger|NAME ERROR") << rejected;
    EXPECT_EQ(Rename(step, "TRÄGER"), "TRÄGER|") << "its own name with other letter case";
}

TEST_F(FeatureAliasTest, ChecksJobsAndShellSectionsByTheirOwnRules) {
    MemoryFeature job = analysisCase.Job("Job-1");
    document.Case("Second").Job("Job-2");
    EXPECT_EQ(Rename(job, "JOB-2"), "Job-1|NAME ERROR");
    EXPECT_EQ(Rename(job, "1.日 \"\\"), "1.日 \"\\|"); // only the uniqueness of a job is checked
    EXPECT_EQ(Rename(job, ""), "|");
    MemoryFeature section = document.PropertySet().Feature("QVRShellSectionEnhLT", "Section");
    EXPECT_EQ(Rename(section, "1st section"), "1st section|");
    EXPECT_EQ(Rename(section, "1.st"), "1st section|NAME ERROR");
    EXPECT_EQ(Rename(document.PropertySet().Feature("QVRLayupLT", "Layup"), "1st layup"), "Layup|NAME ERROR");
}

TEST_F(FeatureAliasTest, GuardsExactlyTheListedLateTypes) {
    EXPECT_EQ(Rename(step.Set("QVRLoadContainerLT").Feature("QVRPressure", "a"), " 1.日_"), " 1.日_|");
    const ZFXMetaClass* extension = QVREFeatureAlias::MetaObject();
    EXPECT_EQ(extension->GetTypeOfClass(), ENUMTypeOfClass::DataExtension);
    EXPECT_EQ(extension->GetBaseMetaClass(), ZFXnull::MetaObject());
    for (const LateTypes::Row& row : LateTypes::kRows) {
        const ZFXIAlias_var alias(document.Model().Feature(row.lateType, "a"));
        const bool isGuarded = alias->GetMetaObject()->GetImplementationMetaClass() == extension;
        EXPECT_EQ(isGuarded, row.alias == LateTypes::Alias::Guarded) << row.lateType;
    }
    EXPECT_EQ(ZFXIAlias_var(step.Without(IID_ZFXIAlias)), nullptr);
}

TEST_F(FeatureAliasTest, AdaptorIsAnInterfaceOfItsFeature) {
    const long before = ZFXBaseUnknown::LiveAllocations();
    {
        const ZFXIAlias_var alias(step);
        const ZFXIAlias_var copy(alias); // refers to the adaptor, not to the step
        EXPECT_EQ(step.References(), 1);
        EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), before + 2);
        EXPECT_TRUE(ZFXISpecObject_var(alias) == step.Object());
        EXPECT_EQ(ZFXIAlias_var(ZFXBaseUnknown_var(alias)).Get(), alias.Get());
        EXPECT_STREQ(alias->IsA(), "ZFXIAlias");
        EXPECT_EQ(alias->GetTypeInfo(0, 0, nullptr), E_NOTIMPL);
    }
    EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), before) << "adaptor or extension not released";

    const ZFXBaseUnknown_var extension = ZFXBaseUnknown_var::Attach(QVREFeatureAlias::CreateItself());
    EXPECT_STREQ(extension->IsA(), "QVREFeatureAlias");
    EXPECT_FALSE(extension->IsAKindOf("QVRBaseFeatureAlias"));
    EXPECT_EQ(extension->GetMetaObject(), QVREFeatureAlias::meta_object);
}

#ifndef _WIN32
TEST_F(FeatureAliasTest, FactoriesReturnNullIfAnAllocationFails) {
    ZFXBaseUnknown* object = step.Object();
    const long before = ZFXBaseUnknown::LiveAllocations();
    for (const int failing : {1, 2}) { // the adaptor, the extension
        allocationsUntilFailure = failing;
        EXPECT_EQ(CreateTIEZFXIAliasQVREFeatureAlias(object, nullptr), nullptr) << "allocation " << failing;
        EXPECT_EQ(allocationsUntilFailure, 0) << "the replaced allocator was not called";
        EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), before) << "allocation " << failing;
    }
    allocationsUntilFailure = 1;
    EXPECT_EQ(QVREFeatureAlias::CreateItself(), nullptr);
    EXPECT_EQ(CreateTIEZFXIAliasQVREFeatureAlias(nullptr, nullptr), nullptr);
}
#endif

TEST_F(FeatureAliasTest, KeepsTheNameIfItCannotBeCheckedOrStored) {
    step.Without(IID_ZFXISpecAttrAccess);
    EXPECT_EQ(Rename(step, "New"), "Step-1|");
    EXPECT_EQ(ZFXIAlias_var(step)->GetAlias(), "");
    EXPECT_EQ(Rename(step, "step"), "Step-1|NAME ERROR") << "the name is checked, although it cannot be stored";
    MemoryFeature feature = analysisCase.Step("QVRStaticLPStepLT", "Step-2").Without(IID_ZFXISpecObject);
    model.FailNth(MemoryRequest::SetString);
    EXPECT_EQ(Rename(feature, "New"), "Step-2|");
    EXPECT_STREQ(model.LastFault(), "SetString") << "the former name is stored again";
}

} // namespace
