#include "memory-model/MemoryModel.h"
#include "object-model/ZFXMetaClass.h"
#include "support/Results.h"

#include <gtest/gtest.h>

#include <filesystem>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace {

const std::filesystem::path kFile(MODULE_FILE);

// What a host does: loads the module, finds its functions by name and unloads it.
#ifdef _WIN32
HMODULE Load() { return LoadLibraryW(kFile.c_str()); }
bool IsLoaded() { return GetModuleHandleW(kFile.c_str()) != nullptr; }
bool Unload(HMODULE module) { return FreeLibrary(module) != 0; }
void* Find(HMODULE module, const char* name) { return reinterpret_cast<void*>(GetProcAddress(module, name)); }
#else
void* Load() { return dlopen(kFile.c_str(), RTLD_NOW); }
bool Unload(void* module) { return dlclose(module) == 0; }
bool IsLoaded() {
    void* const module = dlopen(kFile.c_str(), RTLD_NOW | RTLD_NOLOAD); // adds a reference if it is loaded
    return module != nullptr && Unload(module);
}
void* Find(void* module, const char* name) { return dlsym(module, name); }
#endif

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
        const auto module = Load();
        ASSERT_NE(module, nullptr);
        const auto marker = reinterpret_cast<int (*)()>(Find(module, "HALVERN_WORKS_UXM2_INTERNAL_QVRNameUtility"));
        ASSERT_NE(marker, nullptr);
        EXPECT_EQ(marker(), 1);
        EXPECT_EQ(fct_FindMetaObject("QVREFeatureAlias")->CountAdaptorFactories(), 1);
        EXPECT_EQ(Renamed(), "Step-1");
        EXPECT_TRUE(Unload(module));
        EXPECT_FALSE(IsLoaded());
        EXPECT_EQ(fct_FindMetaObject("QVREFeatureAlias")->CountAdaptorFactories(), 0);
        EXPECT_EQ(Renamed(), "1.0");
    }
}

} // namespace
