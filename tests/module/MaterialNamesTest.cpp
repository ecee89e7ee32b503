#include "support/SingletonTest.h"

namespace {

using MaterialNamesTest = SingletonTest;

TEST_F(MaterialNamesTest, NumberCountsEarlierMaterialsOfThatName) {
    const auto material = [&](const char* name) {
        return document.Model().Add(MemoryKind::Material, "SAM.Mat", "alias").MaterialName(name);
    };
    MemoryFeature steel = material("Steel");
    MemoryFeature aluminium = material("Aluminium");
    MemoryFeature steel2 = material("Steel");
    MemoryFeature byAlias = set.Feature("M", "Steel");
    EXPECT_EQ(NameBy(kMaterial, steel), "Steel");
    EXPECT_EQ(NameBy(kGenericMaterial, aluminium), "SAM-Mat-2");
    EXPECT_EQ(NameBy(kMaterial, steel2), "Steel-1");
    EXPECT_EQ(NameBy(kMaterial, byAlias), "Steel-2");
    EXPECT_EQ(NameBy(kMaterial, aluminium) + NameBy(kMaterial, steel2) + NameBy(kMaterial, steel),
              "AluminiumSteel-1Steel");
    EXPECT_EQ(NameBy(kGenericMaterial, steel), "SAM-Mat-1");
    steel.MaterialName("Iron.2");
    EXPECT_EQ(NameBy(kMaterial, steel2) + NameBy(kMaterial, byAlias), "SteelSteel-1");
    EXPECT_EQ(NameBy(kMaterial, material("Iron.2")), "Iron-2-1"); // full stops go after the numbering

    MemoryFeature nameless = set.Feature("M", "n").Without(IID_ZFXIAlias);
    EXPECT_EQ(NameBy(kMaterial, nameless), "E_FAIL|before");
    EXPECT_EQ(nameless.References(), 0);
    aluminium.Without(IID_ZFXIMaterialFeature).Without(IID_ZFXIAlias);
    EXPECT_EQ(NameBy(kMaterial, byAlias), "E_FAIL|Steel"); // a listed one gets its bare name
    MemoryFeature unlisted = material("New");
    EXPECT_EQ(NameBy(kMaterial, unlisted), "E_FAIL|before");
    EXPECT_EQ(unlisted.References(), 0);
    EXPECT_EQ(NameBy(kMaterial, steel), "Iron-2"); // nobody before it
}

} // namespace
