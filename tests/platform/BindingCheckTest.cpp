#include "support/DocumentTest.h"
#include "support/TestFolder.h"

#include "analysis/AnalysisServices.h"
#include "binding-check/ZFXBindingCheck.h"
#include "errors/MessageCatalog.h"
#include "object-model/ZFXImplements.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string_view>
#include <tuple>

namespace {

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
constexpr const char* kServices = "Services: requests about the whole document";
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

/// A step, or the history that contains it. The history is also the first set of the step, and the attribute that
/// points at it. The class implements the operations of the root itself; QVRIStep is a member, all other interfaces are
/// bases.
class Host final : public ZFXISpecObject,
                   public ZFXIAlias,
                   public ZFXISpecAttrAccess,
                   public ZFXISamAnalysisEntity,
                   public ZFXILinkableObject,
                   public ZFXISpecAttribute,
                   public ZFXISamAnalysisScan,
                   public ZFXISamAnalysisSet {
public:
    /// @param itsFather  null for a history
    Host(std::string_view itsMistake, const char* itsLateType, Host* itsFather)
        : mistake(itsMistake), lateType(itsLateType), father(itsFather) {
        m_step.host = this;
        if (mistake != "no SetImpl")
            m_step.SetImpl(Root());
    }

    ~Host() override {
        m_document->AddRef();
        while (m_document->Release() > 1) {
        } // releases what a mistake has added
    }

    ZFXBaseUnknown* Root() { return static_cast<ZFXISpecObject*>(this); }
    ULONG AddRef() override { return ++count; }
    ULONG Release() override { return --count; }
    ZFXBaseUnknown* GetImpl() const override { return const_cast<Host*>(this)->Root(); }
    HRESULT QueryInterface(const char* name, void** result) override {
        return ZFXISpecObject::QueryInterface(name, result);
    }
    HRESULT QueryInterface(const IID& iid, void** result) override {
        const ZFXAdaptorFactory factory = fct_FindMetaObject(lateType)->FindAdaptorFactory(iid);
        if (factory != nullptr && mistake != "no search for extensions" && mistake != "wrong base") {
            *result = factory(Root(), nullptr);
            return S_OK;
        }
        *result = OwnInterface(iid);
        if (*result == nullptr) {
            *result = mistake == "pointer after a failure" ? this : nullptr;
            return mistake == "no pointer after a success" ? S_OK : E_NOINTERFACE;
        }
        count += mistake == "cast without reference" ? 0 : mistake == "cast with two references" ? 2 : 1;
        return S_OK;
    }

    ZFXUnicodeString GetLateType() override {
        return mistake == "changing late type" && ++m_requests > 1 ? "AnotherLT" : lateType;
    }
    ZFXBaseUnknown* GetFather() override {
        if (mistake == "exception")
            throw std::runtime_error("from the host");
        if (mistake == "father of itself")
            return WithReference(this);
        return mistake == "father without reference" ? father->Root() : WithReference(father);
    }
    ZFXListValZFXISpecAttribute_var* ListPointingAttributes(const char*, const ZFXUnicodeString&,
                                                            const ZFXUnicodeString&) override {
        return mistake == "no pointing attributes" ? nullptr : &pointing;
    }
    ZFXBaseUnknown* GetOwner() override { return mistake == "owner without reference" ? Root() : WithReference(this); }
    ZFXISpecAttrKey* GetAttrKey(const char* name) override {
        if (std::string(name) != (mistake == "wrong attribute" ? "Name" : "Alias"))
            return nullptr;
        return mistake == "borrowed key" ? m_key.Get() : ZFXISpecAttrKey_var(m_key).Detach();
    }
    void SetString(ZFXISpecAttrKey*, const ZFXUnicodeString&, int) override {}
    ZFXUnicodeString GetString(ZFXISpecAttrKey*, int) override { return "name"; }
    void SetAlias(const ZFXUnicodeString&) override {}
    ZFXUnicodeString GetAlias() override { return "name"; }
    HRESULT GetParentSets(ZFXListValZFXBaseUnknown_var*& list) override {
        if (mistake == "lost reference")
            AddRef();
        if (mistake == "null list")
            return S_OK;
        list = mistake == "borrowed list" ? &m_sets : new ZFXListValZFXBaseUnknown_var;
        if (mistake != "empty list")
            list->Append(ZFXBaseUnknown_var(mistake == "null entry" ? nullptr : father->Root()));
        return S_OK;
    }
    HRESULT FindObjectsOfType(const ZFXUnicodeString&, ZFXListValZFXBaseUnknown_var&, int) override { return S_OK; }
    HRESULT ListChildren(ZFXListValZFXBaseUnknown_var& children, int) override {
        children.Append(step->Root());
        return S_OK;
    }
    HRESULT ListMembers(ZFXListValZFXISpecObject_var& members, const IID&, int) override {
        if (mistake != "not a member")
            members.Append(step->Root());
        return S_OK;
    }
    ZFXDocument* GetOwningDocument() override {
        if (mistake == "document with reference")
            m_document->AddRef();
        return mistake == "no document" ? nullptr : m_document.Get();
    }

    const std::string_view mistake;
    const char* const lateType;
    Host* const father;
    Host* step = nullptr;
    ZFXListValZFXISpecAttribute_var pointing;
    ULONG count = 1;

private:
    static ZFXBaseUnknown* WithReference(Host* host) {
        return host == nullptr ? nullptr : ZFXNewReference(host->Root());
    }
    ZFXBaseUnknown* OwnInterface(const IID& iid) {
        const bool isStep = father != nullptr;
        if (iid == IID_ZFXIAlias)
            return mistake == "wrong base" ? Root() : static_cast<ZFXIAlias*>(this);
        if (iid == IID_QVRIStep && isStep)
            return mistake == "uneven offers" && ++m_requests % 3 != 1 ? nullptr : static_cast<QVRIStep*>(&m_step);
        return iid == IID_ZFXBaseUnknown || iid == IID_ZFXISpecObject ? Root()
               : iid == IID_ZFXISpecAttrAccess                        ? static_cast<ZFXISpecAttrAccess*>(this)
               : iid == IID_ZFXILinkableObject                        ? static_cast<ZFXILinkableObject*>(this)
               : iid == IID_ZFXISamAnalysisEntity && isStep           ? static_cast<ZFXISamAnalysisEntity*>(this)
               : isStep                                               ? nullptr
               : iid == IID_ZFXISpecAttribute                         ? static_cast<ZFXISpecAttribute*>(this)
               : iid == IID_ZFXISamAnalysisScan                       ? static_cast<ZFXISamAnalysisScan*>(this)
               : iid == IID_ZFXISamAnalysisSet                        ? static_cast<ZFXISamAnalysisSet*>(this)
                                                                      : static_cast<ZFXBaseUnknown*>(nullptr);
    }

    struct : QVRIStep {
        ULONG AddRef() override { return host->AddRef(); }
        ULONG Release() override { return host->Release(); }
        Host* host = nullptr;
    } m_step;
    int m_requests = 0;
    ZFXListValZFXBaseUnknown_var m_sets;
    const ZFXHandle<ZFXDocument> m_document = ZFXHandle<ZFXDocument>::Attach(new ZFXDocument);
    const ZFXISpecAttrKey_var m_key = ZFXISpecAttrKey_var::Attach(new ZFXISpecAttrKey);
};

TEST(BindingCheck, ReportsEachMistakeOfAHost) {
    const ZFXFillDictionary extension(
        fct_RetrieveMetaObject("BindingCheckExtension", ENUMTypeOfClass::DataExtension, nullptr, "ExtendedLT", "", 0),
        ZFXIAlias::MetaObject(), Adaptor::Make, nullptr, 1);
    const std::tuple<std::string_view, const char*, const char*> rows[] = {
        {"none", "", ""},
        {"cast without reference", "QueryInterface to ZFXBaseUnknown returns an object without", kOwnership},
        {"cast with two references", "QueryInterface to ZFXBaseUnknown returns an object with more", kOwnership},
        {"pointer after a failure", "QueryInterface to ZFXISpecAttribute fails without setting", kOwnCount},
        {"no pointer after a success", "QueryInterface to ZFXISpecAttribute succeeds without", kOwnCount},
        {"no SetImpl", "QueryInterface to QVRIStep returns an interface whose GetImpl", kOwnCount},
        {"wrong base", "QueryInterface to ZFXIAlias returns the address of another base", kOwnCount},
        {"uneven offers", "QueryInterface to QVRIStep differs between the object and", kOwnCount},
        {"no search for extensions", "QueryInterface to ZFXIAlias does not return the adaptor", kCasts},
        {"father without reference", "ZFXISpecObject::GetFather returns an object without", kOwnership},
        {"owner without reference", "ZFXISpecAttribute::GetOwner returns an object without", kOwnership},
        {"borrowed key", "ZFXISpecAttrAccess::GetAttrKey returns an object without", kOwnership},
        {"borrowed list", "ZFXISamAnalysisEntity::GetParentSets returns one list twice", kOwnership},
        {"exception", "ZFXISpecObject::GetFather throws an exception", kOwnership},
        {"null list", "ZFXISamAnalysisEntity::GetParentSets returns a null list", kScopes},
        {"null entry", "ZFXISamAnalysisEntity::GetParentSets returns a list whose first", kScopes},
        {"empty list", "ZFXISamAnalysisEntity::GetParentSets returns an empty list", kScopes},
        {"not a member", "ZFXISamAnalysisSet::ListMembers does not list the feature", kScopes},
        {"wrong attribute", "ZFXISpecAttrAccess::GetAttrKey returns no key of the attribute \"Alias\"", kFeatures},
        {"father of itself", "ZFXISpecObject::GetFather leads from an object back to it", kFeatures},
        {"changing late type", "ZFXISpecObject::GetLateType returns another late type", kFeatures},
        {"no pointing attributes", "ZFXISpecObject::ListPointingAttributes returns null for a step", kFeatures},
        {"no history", "ZFXISpecObject::ListPointingAttributes returns no attribute", kFeatures},
        {"no document", "ZFXILinkableObject::GetOwningDocument returns no document", kServices},
        {"document with reference", "ZFXILinkableObject::GetOwningDocument adds a reference", kOwnership},
        {"lost reference", "The requests leave references on the object", kOwnership},
    };
    for (const auto& [mistake, sentence, section] : rows) {
        const bool isOfHistory = mistake == "owner without reference" || mistake == "not a member";
        Host history(isOfHistory ? mistake : "none", mistake == "no history" ? "OtherLT" : "QVROruSimHistLT", nullptr);
        Host step(mistake, "ExtendedLT", &history);
        history.step = &step;
        step.pointing.Append(static_cast<ZFXISpecAttribute*>(&history));
        ExpectFault(FirstFault(step.Root()), sentence, section);
        EXPECT_TRUE(step.count == 1 || mistake == "uneven offers" || mistake == "lost reference") << mistake;
        EXPECT_EQ(history.count, mistake == "borrowed list" ? 4U : 2U) << mistake;
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
        ExpectFault(report[0], "AnalysisServices::GetAllAnalysisCases returns a list with a null entry", kOwnership);
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
