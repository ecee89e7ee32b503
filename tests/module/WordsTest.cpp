#include "support/LoadedLibrary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <new>
#include <optional>
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

TEST(Words, AreBuiltInOrderAndDestroyedInReverse) {
    constexpr std::size_t kInline = 32; // units that a text holds without a block
    std::ptrdiff_t longWords = 0;
#define NAMED_WORD(name, text) longWords += std::string_view(text).size() > kInline ? 1 : 0;
#include "Vocabulary.def"
#undef NAMED_WORD
    isWatching = true;
    std::optional<LoadedLibrary> module(std::in_place, MODULE_FILE);
    const auto atUnload = static_cast<std::ptrdiff_t>(blocks.size());
    module.reset();
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
