#include "QVREFeatureAlias.h"

#include "LateTypes.h"
#include "support/DocumentTest.h"

namespace {

/// Writes down which adaptors come and go.
class Watched final : public ZFXBaseUnknown {
public:
    void ChangeComponentState(ZFXComponentState state, ZFXBaseUnknown* adaptor) override {
        states += state == ZFXComponentState::AdaptorAttached ? '+' : '-';
        last = adaptor;
    }

    std::string states;
    const ZFXBaseUnknown* last = nullptr;
};

class FeatureAliasTest : public DocumentTest {
protected:
    MemoryFeature analysisCase = document.Case("Static");
    MemoryFeature step = analysisCase.Step("QVRStaticLPStepLT", "Step-1");
    MemoryFeature other = analysisCase.Step("QVRStaticLPStepLT", "step");

    /// Renames as a host does; what stands in the alias afterwards, and what the console said.
    std::string Rename(MemoryFeature feature, const ZFXUnicodeString& name) {
        const std::string console = CapturedOutput([&] { ZFXIAlias_var(feature)->SetAlias(name); });
        return Text(feature.StoredAlias()) + "|" + console.substr(0, console.find(':'));
    }
};

TEST_F(FeatureAliasTest, AStepIsRenamedUnderTheRules) {
    const std::string console = CapturedOutput([&] { ZFXIAlias_var(step)->SetAlias(" Step_ "); });
    EXPECT_EQ(console, "NAME ERROR: Another step of this analysis case already has the name; capital and small letters "
                       "count as the same. Choose a name that no step of the case has.\n");
    EXPECT_EQ(Text(ZFXIAlias_var(step)->GetAlias()), "Step-1");
    EXPECT_EQ(Rename(step, "  _ _Lo ad__ "), " _Lo ad|"); // blanks first, then underscores, each once
    EXPECT_EQ(Rename(step, "Tr\xC3\xA4ger"), "Träger|");
    for (const char* refused : {"", " __ ", "1st", "a.b", "日本"})
        EXPECT_EQ(Rename(step, refused), "Träger|NAME ERROR") << refused;
    EXPECT_EQ(Rename(step, "TRÄGER"), "TRÄGER|"); // its own name in other letters
}

TEST_F(FeatureAliasTest, JobsAndShellSectionsHaveRulesOfTheirOwn) {
    MemoryFeature job = analysisCase.Job("Job-1");
    document.Case("Second").Job("Job-2");
    EXPECT_EQ(Rename(job, "JOB-2"), "Job-1|NAME ERROR");
    EXPECT_EQ(Rename(job, "1.日 \"\\"), "1.日 \"\\|"); // nothing else is asked of a job
    EXPECT_EQ(Rename(job, ""), "|");
    MemoryFeature section = document.PropertySet().Feature("QVRShellSectionEnhLT", "Section");
    EXPECT_EQ(Rename(section, "1st section"), "1st section|");
    EXPECT_EQ(Rename(section, "1.st"), "1st section|NAME ERROR");
    MemoryFeature layup = document.PropertySet().Feature("QVRLayupLT", "Layup");
    EXPECT_EQ(Rename(layup, "1st layup"), "Layup|NAME ERROR");
    analysisCase.FailAlways(MemoryRequest::FindObjectsOfType, kFailsFilled);
    job.Father(MemoryFeature());
    model.FailAlways(MemoryRequest::GetParentSets, kFails);
    EXPECT_EQ(Rename(job, "x"), "|"); // refused without a registered error: silently
}

TEST_F(FeatureAliasTest, SetterReadsOnceAndStoresTwice) {
    MemoryFeature job = analysisCase.Job("");
    MemoryFeature layup = document.PropertySet().Feature("QVRLayupLT", "");
    const std::pair<MemoryRequest, long> firstUnexpected[] = {
        {MemoryRequest::GetString, 2}, {MemoryRequest::SetString, 3}, {MemoryRequest::GetLateType, 2}};
    for (const auto& [request, number] : firstUnexpected) {
        model.FailNth(request, number);
        EXPECT_EQ(Rename(job, "Job-2"), "Job-2|");
        EXPECT_STREQ(model.LastFault(), "") << "a renaming that is accepted";
        model.ClearFaults();
        model.FailNth(request, number);
        EXPECT_EQ(Rename(layup, "1.st"), "|NAME ERROR");
        EXPECT_STREQ(model.LastFault(), "") << "a renaming that is refused";
        model.ClearFaults();
        job.Alias("");
    }
}

TEST_F(FeatureAliasTest, OnlyTheListedTypesAreGuarded) {
    MemoryFeature load = step.Set("QVRLoadContainerLT").Feature("QVRPressure", "a");
    EXPECT_EQ(Rename(load, " 1.日_"), " 1.日_|");
    const ZFXMetaClass* extension = QVREFeatureAlias::MetaObject();
    EXPECT_EQ(static_cast<int>(extension->GetTypeOfClass()), 2); // a data extension
    EXPECT_EQ(extension->GetBaseMetaClass(), ZFXnull::MetaObject());
    for (const LateTypes::Row& row : LateTypes::kRows) {
        const ZFXIAlias_var alias(document.Model().Feature(row.lateType, "a"));
        const bool isGuarded = alias->GetMetaObject()->GetImplementationMetaClass() == extension;
        EXPECT_EQ(isGuarded, row.alias == LateTypes::Alias::Guarded) << row.lateType;
    }
    EXPECT_FALSE(ZFXIAlias_var(step.Without(IID_ZFXIAlias)));
}

TEST_F(FeatureAliasTest, AnAdaptorIsAFaceOfItsFeatureAndKeepsItAlive) {
    ZFXIAlias_var alias(step);
    const ZFXIAlias_var copy(alias); // counted by the adaptor
    EXPECT_EQ(step.References(), 1);
    EXPECT_TRUE(alias == step.Object() && ZFXISpecObject_var(alias) == step.Object());
    EXPECT_TRUE(ZFXIAlias_var(ZFXBaseUnknown_var(alias)) == alias);
    EXPECT_STREQ(alias->IsA(), "ZFXIAlias");
    unsigned int count = 9;
    EXPECT_TRUE(alias->GetTypeInfoCount(&count) == S_OK && count == 0);
    EXPECT_EQ(alias->GetTypeInfo(0, 0, nullptr), E_NOTIMPL);
    const long before = ZFXBaseUnknown::LiveAllocations();
    {
        const ZFXIAlias_var another(other);
        EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), before + 2);
    }
    EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(),
              before); // adaptor and extension went with the last reference

    const ZFXBaseUnknown_var extension = ZFXBaseUnknown_var::Attach(QVREFeatureAlias::CreateItself());
    EXPECT_STREQ(extension->IsA(), "QVREFeatureAlias");
    EXPECT_STREQ(QVREFeatureAlias::ClassName(), "QVREFeatureAlias");
    EXPECT_TRUE(extension->IsAKindOf("QVREFeatureAlias") && !extension->IsAKindOf("QVRBaseFeatureAlias"));
    EXPECT_EQ(extension->GetMetaObject(), QVREFeatureAlias::meta_object);
    EXPECT_EQ(CreateTIEZFXIAliasQVREFeatureAlias(nullptr, nullptr), nullptr);

    auto* watched = new Watched;
    ZFXBaseUnknown* adaptor = CreateTIEZFXIAliasQVREFeatureAlias(watched, nullptr);
    EXPECT_EQ(watched->Release(), 1U); // the adaptor holds it
    EXPECT_TRUE(watched->states == "+" && watched->last == adaptor);
    void* face = nullptr;
    EXPECT_EQ(adaptor->QueryInterface(IID_ZFXIAlias, &face), S_OK);
    EXPECT_EQ(face, adaptor);
    EXPECT_TRUE(adaptor->QueryInterface(IID_ZFXISpecObject, &face) == E_NOINTERFACE && !face); // the object is asked
    EXPECT_TRUE(adaptor->QueryInterface(IID_ZFXIAlias, nullptr) < 0 && adaptor->Release() == 1U);
    watched->AddRef();
    EXPECT_TRUE(adaptor->Release() == 0U && watched->states == "+-");
    EXPECT_EQ(watched->Release(), 0U);
}

TEST_F(FeatureAliasTest, WithoutAttributesNothingIsStored) {
    step.Without(IID_ZFXISpecAttrAccess);
    EXPECT_EQ(Rename(step, "New"), "Step-1|");
    EXPECT_EQ(Text(ZFXIAlias_var(step)->GetAlias()), "");
    EXPECT_EQ(Rename(step, "step"), "Step-1|NAME ERROR"); // the checks run all the same
    other.WithoutAttribute("Alias");
    EXPECT_EQ(Rename(other, "New"), "step|");
    other.Without(IID_ZFXISpecObject);
    EXPECT_EQ(Rename(other, "New"), "step|");
}

} // namespace
