#include "support/SingletonTest.h"

namespace {

using GenericNamesTest = SingletonTest;

/// A feature interface that can move from one object to another.
struct MovableFeature final : ZFXISpecObject {
    ZFXUnicodeString GetLateType() override { return "T"; }
    ZFXBaseUnknown* GetFather() override { return nullptr; }
    ZFXListValZFXISpecAttribute_var* ListPointingAttributes(const char*, const ZFXUnicodeString&,
                                                            const ZFXUnicodeString&) override {
        return nullptr;
    }
};

TEST_F(GenericNamesTest, GetGenericEnglishNameNumbersByPositionInTheFather) {
    const Operation kByPosition = &QVRGenI18NUtils::GetGenericEnglishName;
    set.Feature("T", "x");
    MemoryFeature second = set.Feature("T.1", "y");
    EXPECT_EQ(NameBy(kByPosition, second), "T.1-2"); // full stops are not replaced
    const char* const error = "GetGenericEnglishNameERR_01|before";
    EXPECT_EQ(NameBy(kByPosition, document.Model().Feature("T", "z")), error) << "the father is not a set";
    EXPECT_EQ(NameBy(kByPosition, set.Father(set)), error) << "its own father, but not its own member";
    EXPECT_EQ(NameBy(kByPosition, set.AddMember(set)), "S-3");
    MemoryFeature another = document.Model().Set("S");
    EXPECT_EQ(NameBy(kByPosition, second.Father(another)), error) << "not a member of the father";
    another.AddMember(set.Feature("T", "w")).AddMember(second);
    EXPECT_EQ(NameBy(kByPosition, second), "T.1-2");
}

TEST_F(GenericNamesTest, FeaturesAreNumberedInTheOrderOfTheFirstCalls) {
    MemoryFeature a = set.Feature("T.x", "Load.1");
    MemoryFeature b = set.Feature("T.x", "Load.1");
    MemoryFeature c = set.Feature("U", "load.1");
    MemoryFeature d = set.Feature("T.x", "Load.1");
    EXPECT_EQ(NameBy(kDisplay, a), "Load1"); // full stops are removed after the numbering
    EXPECT_EQ(NameBy(kDisplay, b), "Load1-1");
    EXPECT_EQ(NameBy(kDisplay, c), "load1") << "names that differ in letter case are numbered separately";
    EXPECT_EQ(NameBy(kGeneric, d), "Tx-3") << "features with a display name count for generic names";
    EXPECT_EQ(NameBy(kGeneric, set.Feature("U", "u")), "U-2");
    a.Alias("Renamed");
    for (const Operation operation : {kDisplay, kGeneric})
        EXPECT_EQ(NameBy(operation, a) + NameBy(operation, d), "Load1Tx-3") << "the first names are kept";
    EXPECT_EQ(NameBy(kDisplay, set.Feature("U", "Load.1")), "Load1-2"); // after b and d; a now has another name
    utils->ResetAllLists();
    EXPECT_EQ(NameBy(kGeneric, d), "Tx-1");
}

TEST_F(GenericNamesTest, LateTypeIsRequestedWhenAFeatureIsFirstNamed) {
    for (const Operation first : {kGeneric, kDisplay}) {
        MemoryFeature feature = set.Feature("T", "x");
        NameBy(first, feature);
        feature.FailAlways(MemoryRequest::GetLateType, kFailure);
        for (const Operation later : {kGeneric, kDisplay})
            NameBy(later, feature);
        EXPECT_STREQ(model.LastFault(), "") << "a second request";
    }
    EXPECT_EQ(NameBy(kGeneric, set.Feature("T", "y")), "T-3");
}

TEST_F(GenericNamesTest, ObjectAtTheAddressOfADeletedObjectGetsItsOwnName) {
    const auto listed = ZFXHandle<MovableFeature>::Attach(new MovableFeature);
    const auto next = ZFXHandle<MovableFeature>::Attach(new MovableFeature);
    const auto object = ZFXBaseUnknown_var::Attach(new MovableFeature);
    ZFXUnicodeString name;
    listed->SetImpl(object);
    utils->GetGenericEnglishFeatureName(listed.Get(), name);
    EXPECT_EQ(name, "T-1");
    listed->SetImpl(nullptr); // as if the object was deleted and a new one has its address
    next->SetImpl(object);
    utils->GetGenericEnglishFeatureName(next.Get(), name);
    EXPECT_EQ(name, "T-2");
}

} // namespace
