#include "QVRGenI18NUtils.h"

#include "support/DocumentTest.h"

#include <tuple>

namespace {

/// Names that the singleton hands out; it is empty before and after each test.
class GenericNamesTest : public DocumentTest {
protected:
    using Operation = HRESULT (QVRGenI18NUtils::*)(const ZFXISpecObject_var&, ZFXUnicodeString&);

    void SetUp() override { utils->ResetAllLists(); }
    void TearDown() override {
        utils->ResetAllLists();
        DocumentTest::TearDown();
    }
    std::string Ask(Operation operation, MemoryFeature feature) {
        ZFXUnicodeString name("before");
        const HRESULT code = (utils->*operation)(feature, name);
        return code == S_OK ? Text(name) : Said(code) + "|" + Text(name);
    }

    static constexpr Operation kByPosition = &QVRGenI18NUtils::GetGenericEnglishName;
    static constexpr Operation kGeneric = &QVRGenI18NUtils::GetGenericEnglishFeatureName;
    static constexpr Operation kDisplay = &QVRGenI18NUtils::GetFeatureName;
    static constexpr Operation kMaterial = &QVRGenI18NUtils::GetMaterialName;
    static constexpr Operation kGenericMaterial = &QVRGenI18NUtils::GetGenericEnglishMaterialName;

    QVRGenI18NUtils* utils = QVRGenI18NUtils::Instance();
    MemoryFeature set = document.Model().Set("S");
};

TEST_F(GenericNamesTest, ByPositionAmongTheFathersMembers) {
    set.Feature("T", "x");
    MemoryFeature second = set.Feature("T.1", "y");
    EXPECT_EQ(Ask(kByPosition, second), "T.1-2"); // full stops stay
    const char* const refused = "GetGenericEnglishNameERR_01|before";
    EXPECT_EQ(Ask(kByPosition, document.Model()), refused);                   // no father
    EXPECT_EQ(Ask(kByPosition, document.Model().Feature("T", "z")), refused); // the father is no set
    EXPECT_EQ(Ask(kByPosition, set.Father(set)), refused);                    // its own father, not its own member
    EXPECT_EQ(Ask(kByPosition, set.Hold(set)), "S-3");
    MemoryFeature another = document.Model().Set("S");
    EXPECT_EQ(Ask(kByPosition, second.Father(another)), refused); // not among its members
    another.Hold(set.Feature("T", "w")).Hold(second);
    EXPECT_EQ(Ask(kByPosition, second), "T.1-2");
    EXPECT_EQ(model.References(), 0);
}

TEST_F(GenericNamesTest, AFeatureNamedOnceKeepsItsName) {
    MemoryFeature a = set.Feature("T.x", "Load.1");
    MemoryFeature b = set.Feature("T.x", "Load.1");
    MemoryFeature c = set.Feature("U", "load.1");
    MemoryFeature d = set.Feature("T.x", "Load.1");
    EXPECT_EQ(Ask(kDisplay, a), "Load1"); // full stops go after the numbering
    EXPECT_EQ(Ask(kDisplay, b), "Load1-1");
    EXPECT_EQ(Ask(kDisplay, c), "load1"); // letter case matters here
    EXPECT_EQ(Ask(kGeneric, d), "Tx-3");  // those that came by their display names count
    EXPECT_EQ(Ask(kGeneric, set.Feature("U", "u")), "U-2");
    a.Alias("Renamed");
    EXPECT_EQ(Ask(kDisplay, a), "Load1");
    EXPECT_EQ(Ask(kGeneric, a), "Load1");
    EXPECT_EQ(Ask(kDisplay, d), "Tx-3");
    EXPECT_EQ(Ask(kDisplay, set.Feature("U", "Load.1")), "Load1-2"); // b and d; a is displayed otherwise now
    EXPECT_EQ(a.References(), 1);

    MemoryFeature nameless = set.Feature("U", "n").Without(IID_ZFXIAlias);
    EXPECT_EQ(Ask(kDisplay, nameless), "E_FAIL|before");
    EXPECT_EQ(nameless.References(), 0); // not remembered
    EXPECT_EQ(Ask(kGeneric, nameless), "U-4");
    MemoryFeature late = set.Feature("V", "v");
    EXPECT_EQ(Ask(kDisplay, late), "E_FAIL|before"); // one that is remembered has no name
    EXPECT_EQ(late.References(), 0);
    EXPECT_EQ(Ask(kDisplay, c), "load1");
    utils->ResetAllLists();
    EXPECT_EQ(model.References(), 0);
    EXPECT_EQ(Ask(kGeneric, d), "Tx-1");
    EXPECT_EQ(Ask(kDisplay, c), "load1");
    model.AnswerAlways(MemoryRequest::GetLateType, kFails); // now all are of the type that is no name
    EXPECT_EQ(Ask(kGeneric, a), "-3");
    EXPECT_EQ(Ask(kGeneric, b), "-4");
}

TEST_F(GenericNamesTest, MaterialsAreWorkedOutAfresh) {
    const auto material = [&](const char* name) {
        return document.Model().Add(MemoryKind::Material, "SAM.Mat", "alias").MaterialName(name);
    };
    MemoryFeature steel = material("Steel");
    MemoryFeature aluminium = material("Aluminium");
    MemoryFeature steel2 = material("Steel");
    MemoryFeature byAlias = set.Feature("M", "Steel");
    EXPECT_EQ(Ask(kMaterial, steel), "Steel");
    EXPECT_EQ(Ask(kGenericMaterial, aluminium), "SAM-Mat-2");
    EXPECT_EQ(Ask(kMaterial, steel2), "Steel-1");
    EXPECT_EQ(Ask(kMaterial, byAlias), "Steel-2");
    EXPECT_EQ(Ask(kMaterial, aluminium) + Ask(kMaterial, steel2) + Ask(kMaterial, steel), "AluminiumSteel-1Steel");
    EXPECT_EQ(Ask(kGenericMaterial, steel), "SAM-Mat-1");
    steel.MaterialName("Iron.2");
    EXPECT_EQ(Ask(kMaterial, steel2) + Ask(kMaterial, byAlias), "SteelSteel-1");
    EXPECT_EQ(Ask(kMaterial, material("Iron.2")), "Iron-2-1"); // full stops go after the numbering

    MemoryFeature nameless = set.Feature("M", "n").Without(IID_ZFXIAlias);
    EXPECT_EQ(Ask(kMaterial, nameless), "E_FAIL|before");
    EXPECT_EQ(nameless.References(), 0);
    aluminium.Without(IID_ZFXIMaterialFeature).Without(IID_ZFXIAlias);
    EXPECT_EQ(Ask(kMaterial, byAlias), "E_FAIL|Steel"); // a listed one gets its bare name
    MemoryFeature unlisted = material("New");
    EXPECT_EQ(Ask(kMaterial, unlisted), "E_FAIL|before");
    EXPECT_EQ(unlisted.References(), 0);
    EXPECT_EQ(Ask(kMaterial, steel), "Iron-2"); // nobody before it
}

TEST_F(GenericNamesTest, SolverCompliantNamesFallBackOnGenericOnes) {
    // clang-format off
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"Load.1", "SAMThickness", "Load-1"}, {"", "SAMThickness", ""}, {"厚", "SAMThickness", "Thickness"},
        {"厚", "SAMThickness", "Thickness-1"}, {"板", "SAMThickness", "Thickness-2"}, {"厚", "QVRxQVR", "厚"},
        {"samx厚", "QVRLayupLT", "x厚"}, {"厚", "Lmsx", "x"}, {"厚", "QV", "QV"}, {"厚", "aQVR", "aQVR"},
        {"厚", "aQVR", "aQVR-1"},
        {"厚", "a.b", "a.b"}, // full stops of a generic name stay
        {"厚", "sam", ""}, {"厚", "qvrx", "x"},
    };
    // clang-format on
    for (const auto& [name, expectedGeneric, expectedCompliant] : rows) {
        ZFXUnicodeString compliant("before");
        EXPECT_EQ(utils->GetTARNISCompliantFeatureName(name, expectedGeneric, compliant), S_OK);
        EXPECT_EQ(Text(compliant), expectedCompliant) << name << " " << expectedGeneric;
    }
    int count = 0;
    EXPECT_EQ(utils->FindNameAndNextID("SAMThickness", count), 1);
    EXPECT_EQ(count, 3);
    ZFXUnicodeString generic("SAMThickness");
    EXPECT_EQ(utils->GetTARNISCompliantFeatureName("厚", generic, generic), S_OK); // in and out at once
    EXPECT_EQ(Text(generic), "Thickness-3");
    utils->FindNameAndNextID("SAMThickness", count);
    EXPECT_EQ(count, 4);
}

TEST(UsedNames, AreCountedExactlyUntilReset) {
    QVRGenI18NUtils* utils = QVRGenI18NUtils::Instance();
    EXPECT_EQ(utils, QVRGenI18NUtils::Instance());
    utils->ResetAllLists();
    int count = 9;
    EXPECT_EQ(utils->FindNameAndNextID("Thickness", count), 0);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(utils->PushNameToList("Thickness"), S_OK);
    utils->PushNameToList("Thickness");
    EXPECT_EQ(utils->FindNameAndNextID("Thickness", count), 1);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(utils->FindNameAndNextID("thickness", count), 0);
    QVRGenI18NUtils copy(*utils);
    utils->ResetAllLists();
    EXPECT_EQ(utils->FindNameAndNextID("Thickness", count), 0);
    EXPECT_EQ(copy.FindNameAndNextID("Thickness", count), 1);
}

} // namespace
