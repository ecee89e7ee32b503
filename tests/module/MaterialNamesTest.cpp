#include "support/SingletonTest.h"

namespace {

struct MaterialNamesTest : SingletonTest {
    MemoryFeature Material(const char* name) {
        return document.Model().Add(MemoryKind::Material, "SAM.Mat", "alias").MaterialName(name);
    }
};

TEST_F(MaterialNamesTest, NumberIsTheCountOfEarlierMaterialsWithTheName) {
    MemoryFeature steel = Material("Steel");
    MemoryFeature aluminium = Material("Aluminium");
    MemoryFeature steel2 = Material("Steel");
    MemoryFeature byAlias = set.Feature("M", "Steel");
    EXPECT_EQ(NameBy(kMaterial, steel), "Steel");
    EXPECT_EQ(NameBy(kGenericMaterial, aluminium), "SAM-Mat-2");
    EXPECT_EQ(NameBy(kMaterial, steel2), "Steel-1");
    EXPECT_EQ(NameBy(kMaterial, byAlias), "Steel-2");
    EXPECT_EQ(NameBy(kMaterial, aluminium), "Aluminium");
    EXPECT_EQ(NameBy(kMaterial, steel2), "Steel-1");
    EXPECT_EQ(NameBy(kGenericMaterial, steel), "SAM-Mat-1");
    steel.MaterialName("Iron.2");
    EXPECT_EQ(NameBy(kMaterial, steel2), "Steel");
    EXPECT_EQ(NameBy(kMaterial, byAlias), "Steel-1");
    EXPECT_EQ(NameBy(kMaterial, Material("Iron.2")), "Iron-2-1");      // full stops are replaced after the numbering
    aluminium.Without(IID_ZFXIMaterialFeature).Without(IID_ZFXIAlias); // a listed material without a name
    EXPECT_EQ(NameBy(kMaterial, byAlias), "E_FAIL|Steel") << "a listed material gets its name without a number";
    EXPECT_EQ(NameBy(kMaterial, Material("New")), "E_FAIL|before");
    EXPECT_EQ(NameBy(kMaterial, steel), "Iron-2") << "no material is before it";
}

} // namespace
