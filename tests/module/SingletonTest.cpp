#include "support/SingletonTest.h"

namespace {

TEST_F(SingletonTest, CopyHasTheCachesAndChangesIndependently) {
    MemoryFeature a = set.Feature("T", "Load");
    MemoryFeature b = set.Feature("T", "Load");
    MemoryFeature steel = document.Model().Add(MemoryKind::Material, "M", "m").MaterialName("Steel");
    for (MemoryFeature feature : {a, b})
        NameBy(kDisplay, feature);
    NameBy(kMaterial, steel);
    utils->PushNameToList("Thickness");
    QVRGenI18NUtils copy(*utils);
    utils->ResetAllLists();
    utils = &copy;
    int count = 0;
    EXPECT_EQ(copy.FindNameAndNextID("Thickness", count), 1);
    EXPECT_EQ(NameBy(kDisplay, b.Alias("Renamed")), "Load-1");
    EXPECT_EQ(NameBy(kGeneric, set.Feature("T", "c")), "T-3");
    EXPECT_EQ(NameBy(kGenericMaterial, steel), "M-1");
    utils = QVRGenI18NUtils::Instance();
    copy.ResetAllLists();
}

} // namespace
