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

TEST_F(GenericNamesTest, ByPositionAmongTheFathersMembers) {
    set.Feature("T", "x");
    MemoryFeature second = set.Feature("T.1", "y");
    EXPECT_EQ(NameBy(kByPosition, second), "T.1-2"); // full stops stay
    const char* const refused = "GetGenericEnglishNameERR_01|before";
    EXPECT_EQ(NameBy(kByPosition, document.Model()), refused);                   // no father
    EXPECT_EQ(NameBy(kByPosition, document.Model().Feature("T", "z")), refused); // the father is no set
    EXPECT_EQ(NameBy(kByPosition, set.Father(set)), refused);                    // its own father, not its own member
    EXPECT_EQ(NameBy(kByPosition, set.AddMember(set)), "S-3");
    MemoryFeature another = document.Model().Set("S");
    EXPECT_EQ(NameBy(kByPosition, second.Father(another)), refused); // not among its members
    another.AddMember(set.Feature("T", "w")).AddMember(second);
    EXPECT_EQ(NameBy(kByPosition, second), "T.1-2");
    EXPECT_EQ(model.References(), 0);
}

TEST_F(GenericNamesTest, AFeatureNamedOnceKeepsItsName) {
    MemoryFeature a = set.Feature("T.x", "Load.1");
    MemoryFeature b = set.Feature("T.x", "Load.1");
    MemoryFeature c = set.Feature("U", "load.1");
    MemoryFeature d = set.Feature("T.x", "Load.1");
    EXPECT_EQ(NameBy(kDisplay, a), "Load1"); // full stops go after the numbering
    EXPECT_EQ(NameBy(kDisplay, b), "Load1-1");
    EXPECT_EQ(NameBy(kDisplay, c), "load1"); // letter case matters here
    EXPECT_EQ(NameBy(kGeneric, d), "Tx-3");  // those that came by their display names count
    EXPECT_EQ(NameBy(kGeneric, set.Feature("U", "u")), "U-2");
    a.Alias("Renamed");
    EXPECT_EQ(NameBy(kDisplay, a), "Load1");
    EXPECT_EQ(NameBy(kGeneric, a), "Load1");
    EXPECT_EQ(NameBy(kDisplay, d), "Tx-3");
    EXPECT_EQ(NameBy(kDisplay, set.Feature("U", "Load.1")), "Load1-2"); // b and d; a is displayed otherwise now
    EXPECT_EQ(a.References(), 1);

    MemoryFeature nameless = set.Feature("U", "n").Without(IID_ZFXIAlias);
    EXPECT_EQ(NameBy(kDisplay, nameless), "E_FAIL|before");
    EXPECT_EQ(nameless.References(), 0); // not remembered
    EXPECT_EQ(NameBy(kGeneric, nameless), "U-4");
    MemoryFeature late = set.Feature("V", "v");
    EXPECT_EQ(NameBy(kDisplay, late), "E_FAIL|before"); // one that is remembered has no name
    EXPECT_EQ(late.References(), 0);
    EXPECT_EQ(NameBy(kDisplay, c), "load1");
    utils->ResetAllLists();
    EXPECT_EQ(model.References(), 0);
    EXPECT_EQ(NameBy(kGeneric, d), "Tx-1");
    EXPECT_EQ(NameBy(kDisplay, c), "load1");
}

TEST_F(GenericNamesTest, LateTypeIsRequestedOnceWhenAFeatureIsFirstNamed) {
    for (const Operation first : {kGeneric, kDisplay}) {
        MemoryFeature feature = set.Feature("T", "x");
        model.FailNth(MemoryRequest::GetLateType, 2, kFails);
        for (const Operation operation : {first, kGeneric, kDisplay, kGeneric})
            NameBy(operation, feature);
        EXPECT_STREQ(model.LastFault(), "") << "a second request";
        model.ClearFaults();
        feature.FailAlways(MemoryRequest::GetLateType, kFails);
    }
    EXPECT_EQ(NameBy(kGeneric, set.Feature("T", "y")), "T-3"); // counted under the type of the first request
    model.FailAlways(MemoryRequest::GetLateType, kFails);
    EXPECT_EQ(NameBy(kGeneric, set.Feature("T", "z")), "-1");
}

TEST_F(GenericNamesTest, ObjectAtTheAddressOfAnEarlierOneGetsItsOwnName) {
    const auto listed = ZFXHandle<MovableFeature>::Attach(new MovableFeature);
    const auto next = ZFXHandle<MovableFeature>::Attach(new MovableFeature);
    const auto earlier = ZFXBaseUnknown_var::Attach(new MovableFeature);
    listed->SetImpl(earlier);
    ZFXUnicodeString name;
    utils->GetGenericEnglishFeatureName(listed.Get(), name);
    EXPECT_EQ(Text(name), "T-1");
    listed->SetImpl(nullptr); // the object is gone, and another one takes its address
    next->SetImpl(earlier);
    utils->GetGenericEnglishFeatureName(next.Get(), name);
    EXPECT_EQ(Text(name), "T-2");
}

} // namespace
