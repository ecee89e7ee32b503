#include "support/SingletonTest.h"

namespace {

TEST_F(SingletonTest, UsedNamesAreCountedExactlyUntilReset) {
    EXPECT_EQ(utils, QVRGenI18NUtils::Instance());
    int count = 9;
    EXPECT_EQ(utils->FindNameAndNextID("Thickness", count), 0);
    EXPECT_EQ(count, 0);
    for (const char* name : {"Thickness", "Layup", "Thickness"})
        EXPECT_EQ(utils->PushNameToList(name), S_OK);
    EXPECT_EQ(utils->FindNameAndNextID("Thickness", count), 1);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(utils->FindNameAndNextID("thickness", count), 0);
    utils->ResetAllLists();
    EXPECT_EQ(utils->FindNameAndNextID("Thickness", count), 0);
}

TEST_F(SingletonTest, CopyKeepsWhatWasIssuedAndContinuesAlone) {
    MemoryFeature a = set.Feature("T", "Load");
    MemoryFeature b = set.Feature("T", "Load");
    MemoryFeature steel = document.Model().Add(MemoryKind::Material, "M", "m").MaterialName("Steel");
    for (MemoryFeature feature : {a, b})
        NameBy(kDisplay, feature);
    NameBy(kMaterial, steel);
    utils->PushNameToList("Thickness");
    QVRGenI18NUtils copy(*utils);
    utils->ResetAllLists();

    int count = 0;
    EXPECT_EQ(copy.FindNameAndNextID("Thickness", count), 1);
    ZFXUnicodeString name;
    copy.GetFeatureName(b.Alias("Renamed"), name);
    EXPECT_EQ(Text(name), "Load-1");
    copy.GetGenericEnglishFeatureName(set.Feature("T", "c"), name);
    EXPECT_EQ(Text(name), "T-3");
    copy.GetGenericEnglishMaterialName(steel, name);
    EXPECT_EQ(Text(name), "M-1");
    copy.ResetAllLists();
}

} // namespace
