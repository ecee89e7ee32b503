#include "support/SingletonTest.h"

#include <random>
#include <tuple>

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

/// Names random materials in one call and in single calls. Some occur twice, and some have no name.
TEST_F(MaterialNamesTest, BatchEqualsSingleCalls) {
    std::mt19937 random(7);
    for (int run = 0; run < 200; ++run) {
        utils->ResetAllLists();
        std::vector<MemoryFeature> materials{MemoryFeature(), set.Feature("T", "A").Without(IID_ZFXIAlias)};
        for (int i = 0; i < 6; ++i)
            materials.push_back(Material(random() % 2 == 0 ? "A" : "B.1"));
        const std::size_t first = run % 4 == 0 ? 0 : 2; // in one of four runs, some materials have no name
        ZFXListValZFXISpecObject_var list;
        for (int i = 0; i < 9; ++i)
            list.Append(materials[first + random() % (materials.size() - first)]);
        for (std::size_t known = random() % 3; known > 0; --known)
            std::ignore = NameBy(kMaterial, materials[1 + known]);
        if (run % 4 == 1) // a known material loses its name
            materials[2].Without(IID_ZFXIMaterialFeature).Without(IID_ZFXIAlias);
        QVRGenI18NUtils single(*utils);
        ZFXListValZFXUnicodeString names;
        const HRESULT code = utils->GetMaterialNames(list, names);
        ASSERT_EQ(names.Size(), list.Size());
        HRESULT expectedCode = S_OK;
        for (int i = 1; i <= list.Size(); ++i) {
            ZFXUnicodeString expected;
            if (Failed(single.GetMaterialName(list[i], expected)))
                expectedCode = E_FAIL;
            EXPECT_EQ(names[i], expected) << "run " << run << ", material " << i;
        }
        EXPECT_EQ(code, expectedCode) << "run " << run;
        ZFXUnicodeString next;
        std::ignore = single.GetGenericEnglishMaterialName(ZFXISpecObject_var(set), next);
        EXPECT_EQ(NameBy(kGenericMaterial, set), Narrow(next)) << "as many materials are known";
    }
}

} // namespace
