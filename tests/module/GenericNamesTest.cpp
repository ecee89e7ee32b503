#include "support/SingletonTest.h"

namespace {

class GenericNamesTest : public SingletonTest {
protected:
    static constexpr Operation kByPosition = &QVRGenI18NUtils::GetGenericEnglishName;
};

/// A feature interface that can move from one object to another.
class MovableFeature final : public ZFXISpecObject {
public:
    ZFXUnicodeString GetLateType() override { return "T"; }
    ZFXBaseUnknown* GetFather() override { return nullptr; }
    ZFXListValZFXISpecAttribute_var* ListPointingAttributes(const char*, const ZFXUnicodeString&,
                                                            const ZFXUnicodeString&) override {
        return nullptr;
    }
};

TEST_F(GenericNamesTest, GetGenericEnglishNameNumbersByPositionInTheFather) {
    set.Feature("T", "x");
    MemoryFeature second = set.Feature("T.1", "y");
    EXPECT_EQ(NameBy(kByPosition, second), "T.1-2"); // full stops are not replaced
    const char* const error = "GetGenericEnglishNameERR_01|before";
    EXPECT_EQ(NameBy(kByPosition, document.Model()), error) << "no father";
    EXPECT_EQ(NameBy(kByPosition, document.Model().Feature("T", "z")), error) << "the father is not a set";
    EXPECT_EQ(NameBy(kByPosition, set.Father(set)), error) << "its own father, but not its own member";
    EXPECT_EQ(NameBy(kByPosition, set.AddMember(set)), "S-3");
    MemoryFeature another = document.Model().Set("S");
    EXPECT_EQ(NameBy(kByPosition, second.Father(another)), error) << "not a member of the father";
    another.AddMember(set.Feature("T", "w")).AddMember(second);
    EXPECT_EQ(NameBy(kByPosition, second), "T.1-2");
    EXPECT_EQ(model.References(), 0);
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
    for (const Operation operation : {kDisplay, kGeneric}) {
        EXPECT_EQ(NameBy(operation, a), "Load1") << "the first name is kept";
        EXPECT_EQ(NameBy(operation, d), "Tx-3") << "the first name is kept";
    }
    EXPECT_EQ(NameBy(kDisplay, set.Feature("U", "Load.1")), "Load1-2"); // after b and d; a now has another name
    EXPECT_EQ(a.References(), 1);
    utils->ResetAllLists();
    EXPECT_EQ(model.References(), 0);
    EXPECT_EQ(NameBy(kGeneric, d), "Tx-1");
    EXPECT_EQ(NameBy(kDisplay, c), "load1");
}

TEST_F(GenericNamesTest, FeatureWithoutAnAliasIsNotCachedByItsDisplayName) {
    MemoryFeature named = set.Feature("U", "load.1");
    MemoryFeature nameless = set.Feature("U", "n").Without(IID_ZFXIAlias);
    EXPECT_EQ(NameBy(kDisplay, named), "load1");
    EXPECT_EQ(NameBy(kDisplay, nameless), "E_FAIL|before");
    EXPECT_EQ(nameless.References(), 0);
    EXPECT_EQ(NameBy(kGeneric, nameless), "U-2");
    MemoryFeature late = set.Feature("V", "v");
    EXPECT_EQ(NameBy(kDisplay, late), "E_FAIL|before") << "a cached feature has no alias";
    EXPECT_EQ(late.References(), 0);
    EXPECT_EQ(NameBy(kDisplay, named), "load1");
}

TEST_F(GenericNamesTest, LateTypeIsRequestedOnceWhenAFeatureIsFirstNamed) {
    for (const Operation first : {kGeneric, kDisplay}) {
        MemoryFeature feature = set.Feature("T", "x");
        model.FailNth(MemoryRequest::GetLateType, 2, kFailure);
        for (const Operation operation : {first, kGeneric, kDisplay, kGeneric})
            NameBy(operation, feature);
        EXPECT_STREQ(model.LastFault(), "") << "a second request";
        model.ClearFaults();
        feature.FailAlways(MemoryRequest::GetLateType, kFailure);
    }
    EXPECT_EQ(NameBy(kGeneric, set.Feature("T", "y")), "T-3") << "counted by the type of the first request";
    model.FailAlways(MemoryRequest::GetLateType, kFailure);
    EXPECT_EQ(NameBy(kGeneric, set.Feature("T", "z")), "-1");
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
