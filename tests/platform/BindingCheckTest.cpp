#include "support/DocumentTest.h"
#include "support/TestFolder.h"

#include "analysis/AnalysisServices.h"
#include "binding-check/HostProbe.h"
#include "binding-check/ZFXBindingCheck.h"
#include "errors/MessageCatalog.h"
#include "object-model/ZFXImplements.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string_view>
#include <tuple>

namespace {

using namespace Section;

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
    const std::string end = text.empty() ? "" : ". See \"" + section + "\" in docs/bind-a-host.md.";
    EXPECT_TRUE(sentence.starts_with(text) && sentence.ends_with(end) && sentence.empty() == text.empty())
        << sentence << "\nexpected: " << text << end;
}

/// Offers ZFXIAlias on an object, through which it makes all other casts. Releases the key of the attribute.
struct Adaptor final : ZFXIAlias {
    static ZFXBaseUnknown* Make(ZFXBaseUnknown* object, void*) {
        auto* adaptor = new Adaptor;
        adaptor->SetImpl(object);
        return adaptor;
    }
    void SetAlias(const ZFXUnicodeString&) override {}
    ZFXUnicodeString GetAlias() override {
        const ZFXISpecAttrAccess_var access(GetImpl());
        return access->GetString(ZFXISpecAttrKey_var::Attach(access->GetAttrKey("Alias")), 0);
    }
};

struct Document final : ZFXDocument {
    ~Document() override { Count() = 1; } // a mistake can add references
};

/// A host with one mistake: a step, or its father. The father is also the first set of the step, and the owner of the
/// attribute that points at it. QVRIStep is a member, which implements the root operations itself.
class Host final
    : public ZFXImplements<ZFXObject, ZFXISpecObject, ZFXIAlias, ZFXISpecAttrAccess, ZFXISamAnalysisEntity,
                           ZFXILinkableObject, ZFXISpecAttribute, ZFXISamAnalysisScan, ZFXISamAnalysisSet> {
public:
    Host(std::string_view mistake, const char* lateType, Host* father)
        : ZFXImplements(mistake == "no search for extensions" ? nullptr : fct_FindMetaObject(lateType)),
          m_mistake(mistake),
          m_lateType(lateType),
          m_father(father) {
        m_step.SetImpl(Makes("no SetImpl") ? nullptr : Root());
        m_step.host = this;
        if (father != nullptr)
            pointing.Append(father);
    }
    ~Host() override { Count() = 1; }

    using ZFXImplements::Root;
    ULONG References() { return Count(); }
    ULONG KeyReferences() { return HostProbe::References(m_key); }
    using ZFXImplements::QueryInterface;
    HRESULT QueryInterface(const IID& iid, void** result) override {
        ZFXBaseUnknown* own = OwnInterface(iid);
        if (iid == IID_QVRIStep && (!Makes("uneven offers") || ++m_requests % 3 == 1))
            own = &m_step;
        if (iid == IID_ZFXIAlias && Makes("wrong base"))
            own = Root();
        if ((iid == IID_QVRIStep && Makes("no step")) || (iid == IID_ZFXIAlias && m_mistake.starts_with("no alias")) ||
            (iid == IID_ZFXISamAnalysisEntity && (Makes("no entity") || Makes("no alias in the history"))))
            own = nullptr;
        const HRESULT code = Cast(iid, own, result);
        if (Failed(code)) {
            *result = Makes("pointer after a failure") ? Root() : nullptr;
            return Makes("no pointer after a success") ? S_OK : code;
        }
        Count() += Makes("cast with two references") ? 1 : 0;
        Count() -= Makes("cast without reference") ? 1 : 0;
        return code;
    }
    ZFXUnicodeString GetLateType() override {
        return Makes("changing late type") && ++m_requests > 1 ? "AnotherLT" : m_lateType;
    }
    ZFXBaseUnknown* GetFather() override {
        if (Makes("exception"))
            throw std::runtime_error("from the host");
        return Makes("father without reference") ? m_father->Root()
                                                 : ZFXNewReference(Makes("father of itself") ? this : m_father);
    }
    ZFXListValZFXISpecAttribute_var* ListPointingAttributes(const char*, const ZFXUnicodeString&,
                                                            const ZFXUnicodeString&) override {
        return Makes("no pointing attributes") ? nullptr : &pointing;
    }
    ZFXBaseUnknown* GetOwner() override { return Makes("owner without reference") ? Root() : ZFXNewReference(this); }
    ZFXISpecAttrKey* GetAttrKey(const char* name) override {
        if (std::string(name) != (Makes("wrong attribute") ? "Name" : "Alias"))
            return nullptr;
        return Makes("borrowed key") ? m_key.Get() : ZFXISpecAttrKey_var(m_key).Detach();
    }
    void SetString(ZFXISpecAttrKey*, const ZFXUnicodeString&, int) override {}
    ZFXUnicodeString GetString(ZFXISpecAttrKey*, int) override { return "name"; }
    void SetAlias(const ZFXUnicodeString&) override {}
    ZFXUnicodeString GetAlias() override { return "name"; }
    HRESULT GetParentSets(ZFXListValZFXBaseUnknown_var*& list) override {
        Count() += Makes("lost reference") ? 1 : 0;
        if (Makes("null list"))
            return S_OK;
        list = Makes("borrowed list") ? &m_sets : new ZFXListValZFXBaseUnknown_var;
        if (!Makes("empty list"))
            list->Append(Makes("null entry") ? nullptr : m_father);
        return S_OK;
    }
    HRESULT FindObjectsOfType(const ZFXUnicodeString&, ZFXListValZFXBaseUnknown_var&, int) override { return S_OK; }
    HRESULT ListChildren(ZFXListValZFXBaseUnknown_var& children, int) override {
        children.Append(step);
        return Makes("failing list") ? E_FAIL : S_OK;
    }
    HRESULT ListMembers(ZFXListValZFXISpecObject_var& members, const IID&, int) override {
        members.Append(Makes("not a member") ? this : step);
        return S_OK;
    }
    ZFXDocument* GetOwningDocument() override {
        if (Makes("document with reference"))
            m_document.AddRef();
        return Makes("no document") ? nullptr : &m_document;
    }

    Host* step = this;
    ZFXListValZFXISpecAttribute_var pointing;

private:
    bool Makes(std::string_view mistake) const { return m_mistake == mistake; }

    struct : QVRIStep {
        ULONG AddRef() override { return host->AddRef(); }
        ULONG Release() override { return host->Release(); }
        Host* host = nullptr;
    } m_step;
    const std::string_view m_mistake;
    const char* const m_lateType;
    Host* const m_father;
    int m_requests = 0;
    ZFXListValZFXBaseUnknown_var m_sets;
    Document m_document;
    const ZFXISpecAttrKey_var m_key = ZFXISpecAttrKey_var::Attach(new ZFXISpecAttrKey);
    const ZFXISpecAttrKey_var m_sameKey = m_key; // exists even if a mistake releases a reference of m_key
};

TEST(BindingCheck, ReportsEachMistakeOfAHost) {
    const ZFXFillDictionary extension(
        fct_RetrieveMetaObject("BindingCheckExtension", ENUMTypeOfClass::DataExtension, nullptr, "ExtendedLT", "", 0),
        ZFXIAlias::MetaObject(), Adaptor::Make, nullptr, 1);
    const std::tuple<std::string_view, const char*, const char*> rows[] = {
        {"none", "", ""},
        {"cast without reference", "QueryInterface to ZFXBaseUnknown returns an object without", kOwnership},
        {"cast with two references", "QueryInterface to ZFXBaseUnknown returns an object with more", kOwnership},
        {"pointer after a failure", "QueryInterface to ZFXISamAnalysisModel fails without setting", kOwnCount},
        {"no pointer after a success", "QueryInterface to ZFXISamAnalysisModel succeeds without", kOwnCount},
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
        {"empty list",
         "ZFXISamAnalysisEntity::GetParentSets returns an empty list: a name that the set already has is accepted "
         "(late type of the checked object: \"ExtendedLT\")",
         kScopes},
        {"failing list", "ZFXISamAnalysisScan::ListChildren fails", kScopes},
        {"no step", "QueryInterface to QVRIStep fails", kScopes},
        {"no alias in the set", "ZFXISamAnalysisSet::ListMembers lists an object that does not", kFeatures},
        {"no alias in the history", "ZFXISamAnalysisScan::ListChildren lists an object that", kFeatures},
        {"no entity", "QueryInterface to ZFXISamAnalysisEntity fails", kScopes},
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
        const char* const lateType = mistake == "no history" ? "OtherLT" : "QVROruSimHistLT";
        Host history(mistake == "owner without reference" || mistake == "not a member" ? mistake : "none", lateType,
                     nullptr);
        Host step(mistake,
                  mistake == "no step"                                         ? "QVRGeneralStaticStepLT"
                  : mistake == "no entity"                                     ? "QVRPressure"
                  : mistake == "wrong base" || mistake.starts_with("no alias") ? "OtherLT"
                                                                               : "ExtendedLT",
                  &history);
        history.step = &step;
        ExpectFault(FirstFault(step.Root()), sentence, section);
        EXPECT_TRUE(step.References() == 1 || mistake == "uneven offers" || mistake == "lost reference") << mistake;
        EXPECT_EQ(history.References(), mistake == "borrowed list" ? 4U : 2U) << mistake;
        EXPECT_EQ(step.KeyReferences(), 2U) << mistake;
    }
}

class BindingCheckOfADocument : public DocumentTest {};

TEST_F(BindingCheckOfADocument, FindsNoFaultInTheInMemoryModelExceptACachedReference) {
    MemoryFeature root = document.Model();
    MemoryFeature analysisCase = document.Case("Case");
    MemoryFeature step = analysisCase.Step("QVRGeneralStaticStepLT", "Step");
    MemoryFeature load = step.Set("QVRLoadContainerLT").Feature("QVRPressure", "Load");
    MemoryFeature group = root.Add(MemoryKind::Group, "AnyLT", "Group");
    MemoryFeature connector = root.Add(MemoryKind::Connector, "AnyLT", "").SetGroup(group);
    MemoryFeature support = root.Add(MemoryKind::Support, "AnyLT", "").AddConnector(connector);
    MemoryFeature design = root.Add(MemoryKind::ConnectionDesign, "AnyLT", "").AddMaster(connector).AddSlave(connector);
    for (MemoryFeature feature :
         {root, analysisCase, analysisCase.History(), step, load, analysisCase.Job("Job"), group, connector, support,
          design, document.PropertySet(), document.MeshManager(), document.MeshPart("Part", 1)}) {
        const auto leak = [&](auto& report) { return ZFXCheckReleased(feature.Object(), 1, report); };
        EXPECT_EQ(FirstFault(feature.Object()), "") << Narrow(feature.LateType());
        EXPECT_EQ(FirstFaultOf(leak), "");
        const ZFXBaseUnknown_var cached(feature);
        ExpectFault(FirstFaultOf(leak),
                    "QVRGenI18NUtils::ResetAllLists was not called before the document closes, or a handle was "
                    "not released: the object has 2 references, the host 1",
                    kErrors);
    }
    EXPECT_EQ(FirstFaultOf(ZFXCheckServices), "");
}

/// Services whose requests succeed without a result.
struct NoResults final : AnalysisServices {
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
    ExpectFault(report[0], "The module QVRNameUtility is not loaded", kLink);
    ExpectFault(report[1], "MessageCatalog::Find finds no catalog", kErrors);
    folder.Write("QVRNameUtility.msg", "NameLengthERR_01.Diagnostic = text\n");
    MessageCatalog::SetFolder(folder.Path("."));
    const ZFXFillDictionary entry(fct_FindMetaObject("QVREFeatureAlias"), ZFXIAlias::MetaObject(), Adaptor::Make,
                                  nullptr, 1); // a module that guards no late type
    ExpectFault(FirstFaultOf(ZFXCheckModule), "The module QVRNameUtility does not guard the late", kLink);
    MessageCatalog::SetFolder("/nowhere");
}

} // namespace
