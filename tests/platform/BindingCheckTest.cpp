#include "support/DocumentTest.h"
#include "support/TestFolder.h"

#include "analysis/AnalysisServices.h"
#include "binding-check/ZFXBindingCheck.h"
#include "errors/MessageCatalog.h"
#include "object-model/ZFXImplements.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

enum class Mistake {
    None,
    // of a host with a reference count of its own
    CastWithoutReference,
    CastWithTwoReferences,
    FailureWithPointer,
    SuccessWithoutPointer,
    NoSetImpl,
    WrongBase,
    UnevenOffers,
    NoSearchForExtensions,
    // in the operations of the interfaces
    FatherWithoutReference,
    OwnerWithoutReference,
    BorrowedKey,
    BorrowedList,
    Exception,
    NullList,
    NullEntry,
    EmptyList,
    OtherSet,
    WrongAttribute,
    FatherOfItself,
    ChangingLateType,
    NoPointingAttributes,
    NoHistory,
    NoDocument,
    DocumentWithReference,
    LostReference,
};

/// Returns the first sentence of a report.
template <class Check>
std::string FirstFaultOf(Check check) {
    std::vector<std::string> report{"kept"};
    const int faults = check(report);
    EXPECT_EQ(report.size(), 1U + static_cast<std::size_t>(faults));
    return faults == 0 ? "" : report[1];
}
std::string FirstFault(ZFXBaseUnknown* object) {
    return FirstFaultOf([&](auto& report) { return ZFXCheckBinding(object, report); });
}
/// Expects that a sentence begins with a text and ends with a section, or that there is none if the text is empty.
void ExpectFault(const std::string& sentence, const std::string& text, const std::string& section) {
    const std::string end = ". See \"" + section + "\" in docs/bind-a-host.md.";
    const bool matches = sentence.compare(0, text.size(), text) == 0 && sentence.size() > end.size() &&
                         sentence.compare(sentence.size() - end.size(), end.size(), end) == 0;
    EXPECT_TRUE(text.empty() ? sentence.empty() : matches) << sentence << "\nexpected: " << text << end;
}
constexpr const char* kCasts = "Objects and their interfaces";
constexpr const char* kOwnCount = "Objects with a reference count of your own";
constexpr const char* kOwnership = "Ownership of results";
constexpr const char* kFeatures = "Features: late type, father, name";
constexpr const char* kScopes = "Scopes: where names are compared and numbered";
constexpr const char* kServices = "Services: questions about the whole document";
constexpr const char* kErrors = "Messages, errors, locale, caches, threads";

/// An adaptor for objects of the late type "ExtendedLT".
class Adaptor final : public ZFXImplements<ZFXObject, ZFXIAlias> {
public:
    explicit Adaptor(ZFXBaseUnknown* object) : ZFXImplements(nullptr), m_object(object) {}
    static ZFXBaseUnknown* Make(ZFXBaseUnknown* object, void*) { return static_cast<ZFXIAlias*>(new Adaptor(object)); }
    using ZFXImplements::QueryInterface;
    HRESULT QueryInterface(const IID& iid, void** result) override {
        return iid == IID_ZFXIAlias ? ZFXImplements::QueryInterface(iid, result)
                                    : m_object->QueryInterface(iid, result);
    }
    ZFXBaseUnknown* GetImpl() const override { return m_object->GetImpl(); }
    void SetAlias(const ZFXUnicodeString&) override {}
    ZFXUnicodeString GetAlias() override { return "name"; }

private:
    const ZFXBaseUnknown_var m_object;
};

/// Adds ZFXIAlias to objects of the late type "ExtendedLT".
struct Extension {
    const ZFXFillDictionary entry{
        fct_RetrieveMetaObject("BindingCheckExtension", ENUMTypeOfClass::DataExtension, nullptr, "ExtendedLT", "", 0),
        ZFXIAlias::MetaObject(), Adaptor::Make, nullptr, 1};
};

/// A host with a reference count of its own. One interface is a second base, one is a member.
class OwnCount final : public ZFXISpecObject, public ZFXIAlias {
public:
    explicit OwnCount(Mistake made)
        : m_mistake(made), m_lateType(made == Mistake::NoSearchForExtensions ? "ExtendedLT" : "AnyLT") {
        m_part.count = &count;
        if (m_mistake != Mistake::NoSetImpl)
            m_part.SetImpl(Root());
    }
    HRESULT QueryInterface(const IID& iid, void** result) override {
        *result = nullptr;
        if (iid == IID_ZFXBaseUnknown || iid == IID_ZFXISpecObject)
            *result = Root();
        else if (iid == IID_ZFXIAlias)
            *result = m_mistake == Mistake::WrongBase ? Root() : static_cast<ZFXIAlias*>(this);
        else if (iid == IID_ZFXIMSHMeshPart && (m_mistake != Mistake::UnevenOffers || ++m_casts % 3 == 1))
            *result = static_cast<ZFXIMSHMeshPart*>(&m_part);
        if (*result == nullptr) {
            *result = m_mistake == Mistake::FailureWithPointer ? this : nullptr;
            return m_mistake == Mistake::SuccessWithoutPointer ? S_OK : E_NOINTERFACE;
        }
        count += m_mistake == Mistake::CastWithoutReference ? 0 : m_mistake == Mistake::CastWithTwoReferences ? 2 : 1;
        return S_OK;
    }
    HRESULT QueryInterface(const char* name, void** result) override {
        return ZFXISpecObject::QueryInterface(name, result);
    }
    ULONG AddRef() override { return ++count; }
    ULONG Release() override { return --count; }
    ZFXBaseUnknown* GetImpl() const override { return const_cast<OwnCount*>(this)->Root(); }
    ZFXBaseUnknown* Root() { return static_cast<ZFXISpecObject*>(this); }

    ZFXUnicodeString GetLateType() override { return m_lateType; }
    ZFXBaseUnknown* GetFather() override { return nullptr; }
    ZFXListValZFXISpecAttribute_var* ListPointingAttributes(const char*, const ZFXUnicodeString&,
                                                            const ZFXUnicodeString&) override {
        return nullptr;
    }
    void SetAlias(const ZFXUnicodeString&) override {}
    ZFXUnicodeString GetAlias() override { return "name"; }

    ULONG count = 1;

private:
    const Mistake m_mistake;
    const char* const m_lateType;
    int m_casts = 0;
    struct : ZFXIMSHMeshPart {
        ULONG AddRef() override { return ++*count; }
        ULONG Release() override { return --*count; }
        ULONG* count = nullptr;
    } m_part;
};

TEST(BindingCheck, ReportsMistakesOfHostsWithTheirOwnCount) {
    const Extension extension;
    const std::tuple<Mistake, const char*, const char*> rows[] = {
        {Mistake::None, "", ""},
        {Mistake::CastWithoutReference, "QueryInterface to ZFXBaseUnknown returns an object without", kOwnership},
        {Mistake::CastWithTwoReferences, "QueryInterface to ZFXBaseUnknown returns an object with more", kOwnership},
        {Mistake::FailureWithPointer, "QueryInterface to ZFXISpecAttribute fails without setting", kOwnCount},
        {Mistake::SuccessWithoutPointer, "QueryInterface to ZFXISpecAttribute succeeds without", kOwnCount},
        {Mistake::NoSetImpl, "QueryInterface to ZFXIMSHMeshPart returns an interface whose GetImpl", kOwnCount},
        {Mistake::WrongBase, "QueryInterface to ZFXIAlias returns the address of another base", kOwnCount},
        {Mistake::UnevenOffers, "QueryInterface to ZFXIMSHMeshPart differs between the object and", kOwnCount},
        {Mistake::NoSearchForExtensions, "QueryInterface to ZFXIAlias does not return the adaptor", kCasts},
    };
    for (const auto& [mistake, sentence, section] : rows) {
        OwnCount object(mistake);
        ExpectFault(FirstFault(object.Root()), sentence, section);
        EXPECT_TRUE(object.count == 1 || mistake == Mistake::UnevenOffers) << sentence;
    }
}

/// A document of one step with a history. The step is also the only member of its set, which is the history.
class Node : public ZFXImplements<ZFXObject, ZFXISpecObject, ZFXISpecAttrAccess, ZFXIAlias, ZFXISamAnalysisEntity,
                                  ZFXILinkableObject> {
public:
    Node(Mistake made, const char* itsLateType) : ZFXImplements(fct_FindMetaObject(itsLateType)), mistake(made) {}

    ZFXUnicodeString GetLateType() override {
        return mistake == Mistake::ChangingLateType && ++m_requests > 1 ? "AnotherLT" : LateType();
    }
    ZFXBaseUnknown* GetFather() override {
        if (mistake == Mistake::Exception)
            throw std::runtime_error("from the host");
        if (mistake == Mistake::FatherWithoutReference)
            return ZFXBaseUnknown_var(father).Get();
        return ZFXNewReference(mistake == Mistake::FatherOfItself ? this : father);
    }
    ZFXListValZFXISpecAttribute_var* ListPointingAttributes(const char*, const ZFXUnicodeString&,
                                                            const ZFXUnicodeString&) override {
        return mistake == Mistake::NoPointingAttributes ? nullptr : &pointing;
    }
    ZFXISpecAttrKey* GetAttrKey(const char* name) override {
        if (std::string(name) != (mistake == Mistake::WrongAttribute ? "Name" : "Alias"))
            return nullptr;
        return mistake == Mistake::BorrowedKey ? m_key.Get() : ZFXISpecAttrKey_var(m_key).Detach();
    }
    void SetString(ZFXISpecAttrKey*, const ZFXUnicodeString&, int) override {}
    ZFXUnicodeString GetString(ZFXISpecAttrKey*, int) override { return "name"; }
    void SetAlias(const ZFXUnicodeString&) override {}
    ZFXUnicodeString GetAlias() override { return "name"; }
    HRESULT GetParentSets(ZFXListValZFXBaseUnknown_var*& sets) override {
        if (mistake == Mistake::NullList)
            return S_OK;
        sets = mistake == Mistake::BorrowedList ? &m_sets : new ZFXListValZFXBaseUnknown_var;
        if (mistake != Mistake::EmptyList)
            sets->Append(mistake == Mistake::NullEntry ? ZFXBaseUnknown_var() : ZFXBaseUnknown_var(father));
        if (mistake == Mistake::LostReference)
            AddRef();
        return S_OK;
    }
    ZFXDocument* GetOwningDocument() override {
        if (mistake == Mistake::DocumentWithReference)
            m_document.AddRef();
        return mistake == Mistake::NoDocument ? nullptr : &m_document;
    }

    /// Releases what the mistake left behind.
    void Undo() {
        pointing.RemoveAll();
        m_sets.RemoveAll();
        for (ZFXBaseUnknown* object : {Root(), static_cast<ZFXBaseUnknown*>(&m_document)})
            for (ULONG references = object->AddRef(); references > 1;)
                references = object->Release();
    }

    const Mistake mistake;
    Node* father = nullptr;
    ZFXListValZFXISpecAttribute_var pointing;

private:
    int m_requests = 0;
    ZFXListValZFXBaseUnknown_var m_sets;
    ZFXDocument m_document;
    const ZFXISpecAttrKey_var m_key = ZFXISpecAttrKey_var::Attach(new ZFXISpecAttrKey);
};

class History final : public ZFXImplements<Node, ZFXISpecAttribute, ZFXISamAnalysisScan, ZFXISamAnalysisSet> {
public:
    using ZFXImplements::ZFXImplements;
    ZFXBaseUnknown* GetOwner() override {
        return mistake == Mistake::OwnerWithoutReference ? Root() : ZFXNewReference(this);
    }
    HRESULT FindObjectsOfType(const ZFXUnicodeString&, ZFXListValZFXBaseUnknown_var&, int) override { return S_OK; }
    HRESULT ListChildren(ZFXListValZFXBaseUnknown_var& children, int) override {
        children.Append(step);
        return S_OK;
    }
    HRESULT ListMembers(ZFXListValZFXISpecObject_var& members, const IID&, int) override {
        if (mistake != Mistake::OtherSet)
            members.Append(step);
        return S_OK;
    }
    Node* step = nullptr;
};

class Step final : public ZFXImplements<Node, QVRIStep> {
public:
    using ZFXImplements::ZFXImplements;
};

TEST(BindingCheck, ReportsMistakesInTheOperationsOfTheInterfaces) {
    const Extension extension;
    const std::tuple<Mistake, const char*, const char*> rows[] = {
        {Mistake::None, "", ""},
        {Mistake::FatherWithoutReference, "ZFXISpecObject::GetFather returns an object without", kOwnership},
        {Mistake::OwnerWithoutReference, "ZFXISpecAttribute::GetOwner returns an object without", kOwnership},
        {Mistake::BorrowedKey, "ZFXISpecAttrAccess::GetAttrKey returns an object without", kOwnership},
        {Mistake::BorrowedList, "ZFXISamAnalysisEntity::GetParentSets returns one list twice", kOwnership},
        {Mistake::Exception, "ZFXISpecObject::GetFather throws an exception", kOwnership},
        {Mistake::NullList, "ZFXISamAnalysisEntity::GetParentSets returns a null list", kScopes},
        {Mistake::NullEntry, "ZFXISamAnalysisEntity::GetParentSets returns a list whose first", kScopes},
        {Mistake::EmptyList, "ZFXISamAnalysisEntity::GetParentSets returns an empty list", kScopes},
        {Mistake::OtherSet, "ZFXISamAnalysisSet::ListMembers does not list the feature", kScopes},
        {Mistake::WrongAttribute, "ZFXISpecAttrAccess::GetAttrKey returns no key of the attribute \"Alias\"",
         kFeatures},
        {Mistake::FatherOfItself, "ZFXISpecObject::GetFather leads from an object back to it", kFeatures},
        {Mistake::ChangingLateType, "ZFXISpecObject::GetLateType returns another late type", kFeatures},
        {Mistake::NoPointingAttributes, "ZFXISpecObject::ListPointingAttributes returns null for a step", kFeatures},
        {Mistake::NoHistory, "ZFXISpecObject::ListPointingAttributes returns no attribute", kFeatures},
        {Mistake::NoDocument, "ZFXILinkableObject::GetOwningDocument returns no document", kServices},
        {Mistake::DocumentWithReference, "ZFXILinkableObject::GetOwningDocument adds a reference", kOwnership},
        {Mistake::LostReference, "The requests leave references on the object", kOwnership},
    };
    for (const auto& [mistake, sentence, section] : rows) {
        History history(mistake == Mistake::OwnerWithoutReference || mistake == Mistake::OtherSet ? mistake
                                                                                                  : Mistake::None,
                        mistake == Mistake::NoHistory ? "OtherLT" : "QVROruSimHistLT");
        Step step(mistake, "ExtendedLT");
        history.step = &step;
        step.father = &history;
        step.pointing.Append(&history);
        ExpectFault(FirstFault(ZFXBaseUnknown_var(&step)), sentence, section);
        step.Undo();
        history.AddRef();
        EXPECT_EQ(history.Release(), 1U) << sentence;
    }
}

class BindingCheckOfADocument : public DocumentTest {};

TEST_F(BindingCheckOfADocument, FindsNoFaultInTheInMemoryModel) {
    MemoryFeature analysisCase = document.Case("Case");
    MemoryFeature step = analysisCase.Step("QVRGeneralStaticStepLT", "Step");
    MemoryFeature load = step.Set("QVRLoadContainerLT").Feature("QVRPressure", "Load");
    MemoryFeature group = document.Model().Add(MemoryKind::Group, "AnyLT", "Group");
    MemoryFeature connector = document.Model().Add(MemoryKind::Connector, "AnyLT", "").SetGroup(group);
    MemoryFeature support = document.Model().Add(MemoryKind::Support, "AnyLT", "").AddConnector(connector);
    MemoryFeature design =
        document.Model().Add(MemoryKind::ConnectionDesign, "AnyLT", "").AddMaster(connector).AddSlave(connector);
    for (MemoryFeature feature :
         {document.Model(), analysisCase, analysisCase.History(), step, load, analysisCase.Job("Job"), group, connector,
          support, design, document.PropertySet(), document.MeshManager(), document.MeshPart("Part", 1)})
        EXPECT_EQ(FirstFault(feature.Object()), "") << Narrow(feature.LateType());
    EXPECT_EQ(FirstFaultOf(ZFXCheckServices), "");
}

TEST_F(BindingCheckOfADocument, ReportsReferencesThatOthersKeep) {
    MemoryFeature load = document.Model().Feature("QVRPressure", "Load");
    const auto faultOf = [&] {
        return FirstFaultOf([&](auto& report) { return ZFXCheckReleased(load.Object(), 1, report); });
    };
    EXPECT_EQ(faultOf(), "");
    const ZFXISpecObject_var cached(load);
    ExpectFault(faultOf(), "QVRGenI18NUtils::ResetAllLists was not called before the document closes", kErrors);
}

/// Services whose requests succeed without a result.
class NoResults final : public AnalysisServices {
public:
    HRESULT GetAllAnalysisCases(ZFXListValZFXBaseUnknown_var& cases, ZFXDocument*) override {
        cases.Append(nullptr);
        return S_OK;
    }
    HRESULT GetJobs(const ZFXListValZFXBaseUnknown_var&, ZFXListValZFXISpecObject_var&) override { throw 1; }
    HRESULT GetAnalysisModel(ZFXISamAnalysisModel_var&, const ZFXDocument*) override { return S_OK; }
    HRESULT GetMeshManager(ZFXIMSHMeshManager_var&, const ZFXDocument*) override { return S_OK; }
    unsigned char IsTarnisAnalysisCase(ZFXISamAnalysisCase_var&) override { return 0; }
    HRESULT GetParentStep(const ZFXISpecObject_var&, ZFXISpecObject_var&) override { return S_OK; }
    HRESULT GetParentCaseFromObject(const ZFXISpecObject_var&, ZFXISpecObject_var&) override { return S_OK; }
    unsigned char IsObjectAProperty(ZFXISpecObject_var&) override { return 0; }
    unsigned char IsObjectAnAmplitude(ZFXISpecObject_var&) override { return 0; }
    HRESULT GetCurrentAnalysisCaseSP(ZFXISamAnalysisCase_var&, ZFXDocument*) override { return S_OK; }
};

TEST(BindingCheck, ReportsFaultyServices) {
    ExpectFault(FirstFaultOf(ZFXCheckServices), "AnalysisServices::Install was not called: no services", kServices);
    {
        NoResults services;
        AnalysisServices::Install(&services);
        std::vector<std::string> report;
        EXPECT_EQ(ZFXCheckServices(report), 4);
        ExpectFault(report[0], "AnalysisServices::GetAllAnalysisCases returns a list with an entry", kOwnership);
        ExpectFault(report[1], "AnalysisServices::GetJobs throws", kOwnership);
        ExpectFault(report[2], "AnalysisServices::GetAnalysisModel succeeds without a result", kServices);
        ExpectFault(report[3], "AnalysisServices::GetMeshManager succeeds without a result", kServices);
    }
    EXPECT_EQ(AnalysisServices::Installed(), nullptr);
    ExpectFault(FirstFaultOf(ZFXCheckServices), "AnalysisServices::Install was not called with null before", kServices);
    AnalysisServices::Install(nullptr);
}

TEST(BindingCheck, ReportsAModuleThatIsNotLoadedAndAMissingCatalog) {
    const TestFolder folder;
    MessageCatalog::SetFolder(folder.Path("."));
    std::vector<std::string> report;
    EXPECT_EQ(ZFXCheckModule(report), 2);
    ExpectFault(report[0], "The module QVRNameUtility is not loaded", "Link the library");
    ExpectFault(report[1], "MessageCatalog::Find finds no catalog", kErrors);
    folder.Write("QVRNameUtility.msg", "NameLengthERR_01.Diagnostic = text\n");
    MessageCatalog::SetFolder(folder.Path("."));
    const ZFXFillDictionary entry(fct_FindMetaObject("QVREFeatureAlias"), ZFXIAlias::MetaObject(), Adaptor::Make,
                                  nullptr, 1); // a module that guards no late type
    ExpectFault(FirstFaultOf(ZFXCheckModule), "The module QVRNameUtility does not guard the late", "Link the library");
    MessageCatalog::SetFolder("/nowhere");
}

} // namespace
