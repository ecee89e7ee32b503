#include "memory-model/MemoryModel.h"
#include "object-model/ZFXMetaClass.h"
#include "support/Said.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <new>
#include <string_view>
#include <vector>

namespace {

/// What long texts were kept in: blocks taken and given back, in order.
struct Block {
    void* place;
    bool taken;
};
std::vector<Block> blocks;
bool isWatching = false;

} // namespace

void* operator new[](std::size_t size) {
    void* place = std::malloc(size);
    if (isWatching)
        blocks.push_back({place, true});
    return place;
}
void operator delete[](void* place) noexcept {
    if (isWatching)
        blocks.push_back({place, false});
    std::free(place);
}
void operator delete[](void* place, std::size_t) noexcept { operator delete[](place); }

namespace {

/// The alias of a step of a guarded type, renamed to something that only an unguarded alias stores.
std::string Renamed() {
    MemoryModel model;
    MemoryFeature step = model.NewDocument().Case("Static").Step("QVRStaticLPStepLT", "Step-1");
    Console([&] { ZFXIAlias_var(step)->SetAlias("1.0"); });
    return Text(step.StoredAlias());
}

TEST(Loading, TheModuleAnnouncesItselfAndLeavesNothingBehind) {
    EXPECT_EQ(Renamed(), "1.0");
    for (int i = 0; i < 10; ++i) {
        void* module = dlopen(MODULE_FILE, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(module, nullptr) << dlerror();
        auto* marker = reinterpret_cast<int (*)()>(dlsym(module, "HALVERN_WORKS_UXM2_INTERNAL_QVRNameUtility"));
        ASSERT_NE(marker, nullptr);
        EXPECT_EQ(marker(), 1);
        EXPECT_EQ(fct_FindMetaObject("QVREFeatureAlias")->CountAdaptorFactories(), 1);
        EXPECT_EQ(Renamed(), "Step-1");
        dlclose(module);
        EXPECT_EQ(dlopen(MODULE_FILE, RTLD_NOW | RTLD_NOLOAD), nullptr) << "the module stayed";
        EXPECT_EQ(fct_FindMetaObject("QVREFeatureAlias")->CountAdaptorFactories(), 0);
        EXPECT_EQ(Renamed(), "1.0");
    }
}

TEST(Loading, TheWordsAreBuiltInOrderAndDestroyedInReverse) {
    constexpr std::size_t kInline = 32; // units that a text holds without a block
    std::ptrdiff_t longWords = 0;
#define WORD(identifier, text) longWords += std::string_view(text).size() > kInline ? 1 : 0;
#include "internal/Vocabulary.def"
#undef WORD
    isWatching = true;
    void* module = dlopen(MODULE_FILE, RTLD_NOW | RTLD_LOCAL);
    const auto atUnload = static_cast<std::ptrdiff_t>(blocks.size());
    dlclose(module);
    isWatching = false;
    std::vector<void*> built;
    for (auto block = blocks.begin(); block != blocks.begin() + atUnload; ++block)
        if (block->taken)
            built.push_back(block->place);
        else
            std::erase(built, block->place);
    std::vector<void*> destroyed;
    for (auto block = blocks.begin() + atUnload; block != blocks.end(); ++block)
        if (std::ranges::find(built, block->place) != built.end())
            destroyed.push_back(block->place);
    EXPECT_EQ(std::ssize(destroyed), longWords);
    std::erase_if(built, [&](void* place) { return std::ranges::find(destroyed, place) == destroyed.end(); });
    EXPECT_TRUE(std::ranges::equal(destroyed.rbegin(), destroyed.rend(), built.begin(), built.end()));
}

} // namespace
