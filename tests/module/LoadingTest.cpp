#include "memory-model/MemoryModel.h"
#include "object-model/ZFXMetaClass.h"
#include "support/LoadedLibrary.h"
#include "support/Results.h"

#include <gtest/gtest.h>

namespace {

/// Renames a step to a name that the module rejects. Returns the stored name.
std::string Renamed() {
    MemoryModel model;
    MemoryFeature step = model.NewDocument().Case("Static").Step("QVRStaticLPStepLT", "Step-1");
    CapturedOutput([&] { ZFXIAlias_var(step)->SetAlias("1.0"); });
    return Narrow(step.StoredAlias());
}

TEST(Loading, ModuleGuardsAliasesOnlyWhileItIsLoaded) {
    EXPECT_EQ(Renamed(), "1.0");
    for (int i = 0; i < 10; ++i) {
        {
            const LoadedLibrary module(MODULE_FILE);
            ASSERT_TRUE(module.IsLoaded());
            auto* marker = module.Find<int()>("HALVERN_WORKS_UXM2_INTERNAL_QVRNameUtility");
            ASSERT_NE(marker, nullptr);
            EXPECT_EQ(marker(), 1);
            EXPECT_EQ(fct_FindMetaObject("QVREFeatureAlias")->CountAdaptorFactories(), 1);
            EXPECT_EQ(Renamed(), "Step-1");
        }
        EXPECT_FALSE(LoadedLibrary::IsInProcess(MODULE_FILE)) << "the module was not unloaded";
        EXPECT_EQ(fct_FindMetaObject("QVREFeatureAlias")->CountAdaptorFactories(), 0);
        EXPECT_EQ(Renamed(), "1.0");
    }
}

} // namespace
