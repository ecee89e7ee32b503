#include "binding-check/ZFXBindingCheck.h"

#include "LateTypes.h"
#include "analysis/AnalysisInterfaces.h"
#include "analysis/WorkbenchUtilities.h"
#include "binding-check/HostProbe.h"
#include "errors/MessageCatalog.h"
#include "object-model/ZFXMetaClass.h"

#include <algorithm>
#include <cassert>
#include <iostream>
#include <memory>
#include <typeinfo>

namespace {

constexpr const char* kGetParentSets = "ZFXISamAnalysisEntity::GetParentSets";
constexpr const char* kListPointing = "ZFXISpecObject::ListPointingAttributes";

/// An object whose casts work, and the report of its faults.
struct Subject {
    ZFXBaseUnknown_var object;
    HostProbe& probe;
    ZFXUnicodeString lateType;

    template <class Interface>
    ZFXHandle<Interface> As() const {
        return ZFXHandle<Interface>(object);
    }
    void Report(const char* operation, const char* fault, const char* section) const {
        probe.Report(operation, fault, section);
    }
    const ZFXMetaClass& MetaClass() const { return *fct_FindMetaObject(lateType.ConvertToChar()); }
    bool IsGuarded() const { return MetaClass().FindAdaptorFactory(IID_ZFXIAlias) != nullptr; }
};

template <class List>
bool Contains(const List& list, const ZFXBaseUnknown_var& object) {
    return std::find(list.begin(), list.end(), object) != list.end();
}

/// Reports a null entry in a list.
template <class List>
void CheckEntries(const Subject& subject, const char* operation, const List& list) {
    if (std::find(list.begin(), list.end(), nullptr) != list.end())
        subject.Report(operation, "returns a list with a null entry", Section::kOwnership);
}

/// Reports an object without a name in a scope.
template <class List>
void CheckNamesOf(const Subject& subject, const char* operation, const List& scope) {
    for (const auto& object : scope)
        if (object != nullptr && ZFXIAlias_var(object) == nullptr)
            subject.Report(
                operation,
                "lists an object that does not offer ZFXIAlias: every new name of another object in the list "
                "is rejected, for example with \"ZFXIAliasERR_01\"",
                Section::kFeatures);
}

ZFXBaseUnknown_var CastTo(const ZFXBaseUnknown_var& object, const IID& iid) {
    void* result = nullptr;
    object->QueryInterface(iid, &result);
    return ZFXBaseUnknown_var::Attach(static_cast<ZFXBaseUnknown*>(result));
}

void CheckLateType(Subject& subject) {
    subject.lateType = subject.As<ZFXISpecObject>()->GetLateType();
    if (subject.lateType.IsNull() != 0)
        subject.Report("ZFXISpecObject::GetLateType", "returns an empty late type", Section::kFeatures);
    subject.probe.SetLateType(subject.lateType.ConvertToChar());
}

void CheckThatTheLateTypeIsConstant(Subject& subject) {
    if (subject.As<ZFXISpecObject>()->GetLateType() != subject.lateType)
        subject.Report("ZFXISpecObject::GetLateType", "returns another late type than before", Section::kFeatures);
}

ZFXBaseUnknown_var FatherOf(const ZFXISpecObject_var& feature, HostProbe& probe) {
    return probe.NewReference<ZFXBaseUnknown>("ZFXISpecObject::GetFather", [&] { return feature->GetFather(); });
}

void CheckFathers(Subject& subject) {
    ZFXListValZFXBaseUnknown_var path;
    path.Append(subject.object);
    for (auto feature = subject.As<ZFXISpecObject>(); feature != nullptr;) {
        const ZFXBaseUnknown_var father = FatherOf(feature, subject.probe);
        if (father != nullptr && Contains(path, father)) {
            subject.Report("ZFXISpecObject::GetFather",
                           "leads from an object back to it: the father of an object contains it", Section::kFeatures);
            return;
        }
        path.Append(father);
        feature = father;
    }
}

/// Reports a feature that lacks the interface that selects the scope of its names.
void CheckScopeInterface(Subject& subject) {
    for (const LateTypes::Row& row : LateTypes::kRows) {
        if (row.kind == LateTypes::Kind::Container || subject.lateType != row.lateType)
            continue;
        const bool isStep = row.kind == LateTypes::Kind::Step;
        if (CastTo(subject.object, isStep ? IID_QVRIStep : IID_ZFXISamAnalysisEntity) == nullptr)
            subject.Report(isStep ? "QueryInterface to QVRIStep" : "QueryInterface to ZFXISamAnalysisEntity",
                           "fails: a name that another feature has is accepted", Section::kScopes);
    }
}

void CheckExtensions(Subject& subject) {
    for (const ProbedInterface& probed : kProbedInterfaces) {
        const ZFXAdaptorFactory factory = subject.MetaClass().FindAdaptorFactory(probed.iid);
        if (factory == nullptr)
            continue;
        const auto adaptor = ZFXBaseUnknown_var::Attach(factory(subject.object->GetImpl(), nullptr));
        const ZFXBaseUnknown_var cast = CastTo(subject.object, probed.iid);
        const ZFXBaseUnknown* const expected = adaptor;
        const ZFXBaseUnknown* const found = cast;
        if (expected != nullptr && (found == nullptr || typeid(*found) != typeid(*expected)))
            subject.probe.Report(
                std::string("QueryInterface to ") + probed.name,
                "does not return the adaptor of the extension that FindAdaptorFactory of the late type finds: names "
                "are stored without a check, because ZFXObject was constructed with another late type, or "
                "QueryInterface does not search for extensions",
                Section::kCasts);
    }
}

void CheckAliasAttribute(Subject& subject) {
    if (!subject.IsGuarded())
        return;
    const auto access = subject.As<ZFXISpecAttrAccess>();
    if (access == nullptr) {
        subject.Report("QueryInterface to ZFXISpecAttrAccess", "fails: every rename is ignored without a message",
                       Section::kFeatures);
        return;
    }
    const int faults = subject.probe.Faults();
    const auto key = subject.probe.NewReference<ZFXISpecAttrKey>("ZFXISpecAttrAccess::GetAttrKey",
                                                                 [&] { return access->GetAttrKey("Alias"); });
    if (subject.probe.Faults() > faults)
        return; // the guarded alias would release a key without a reference
    const auto alias = subject.As<ZFXIAlias>();
    if (key == nullptr)
        subject.Report("ZFXISpecAttrAccess::GetAttrKey",
                       "returns no key of the attribute \"Alias\": every rename is ignored without a message",
                       Section::kFeatures);
    else if (alias != nullptr && access->GetString(key, 0) != alias->GetAlias())
        subject.Report("ZFXISpecAttrAccess::GetString", "returns another text than ZFXIAlias::GetAlias",
                       Section::kFeatures);
}

void CheckFirstSet(Subject& subject, const ZFXBaseUnknown_var& first) {
    const ZFXISamAnalysisSet_var set(first);
    const ZFXISpecObject_var feature(first);
    ZFXListValZFXISpecObject_var members;
    if (set != nullptr)
        set->ListMembers(members, CLSID_ZFXBaseUnknown, ZFXISamAnalysisSet::kMemberFlag);
    CheckNamesOf(subject, "ZFXISamAnalysisSet::ListMembers", members);
    if (set == nullptr || feature == nullptr)
        subject.Report(kGetParentSets, "returns a first set that does not offer ZFXISamAnalysisSet and ZFXISpecObject",
                       Section::kScopes);
    else if (!Contains(members, subject.object))
        subject.Report("ZFXISamAnalysisSet::ListMembers",
                       "does not list the feature, although this set is the first of its parent sets: no entry has the "
                       "GetImpl of the feature",
                       Section::kScopes);
    else if (subject.lateType == LateTypes::QVRJobLT &&
             ZFXISamAnalysisModel_var(FatherOf(feature, subject.probe)) == nullptr)
        subject.Report("ZFXISpecObject::GetFather", "does not return the analysis model as father of a job container",
                       Section::kScopes);
}

void CheckParentSets(Subject& subject) {
    using List = ZFXListValZFXBaseUnknown_var;
    const auto entity = subject.As<ZFXISamAnalysisEntity>();
    List* first = nullptr;
    List* second = nullptr;
    const HRESULT code = entity->GetParentSets(first);
    entity->GetParentSets(second);
    if (first != nullptr && first == second) {
        subject.Report(kGetParentSets, "returns one list twice: the caller deletes the list, so it must be a new one",
                       Section::kOwnership);
        return;
    }
    const std::unique_ptr<List> sets(first);
    const std::unique_ptr<List> unused(second);
    if (Failed(code))
        subject.Report(kGetParentSets, "fails: every rename is rejected without a message", Section::kScopes);
    else if (sets == nullptr)
        subject.Report(kGetParentSets, "returns a null list: a name that the set already has is accepted",
                       Section::kScopes);
    else if (sets->Size() == 0)
        subject.Report(kGetParentSets, "returns an empty list: a name that the set already has is accepted",
                       Section::kScopes);
    else if ((*sets)[1] == nullptr)
        subject.Report(kGetParentSets,
                       "returns a list whose first set is null: every rename is rejected without a message",
                       Section::kScopes);
    else
        CheckFirstSet(subject, (*sets)[1]);
}

void CheckHistoryOfStep(Subject& subject) {
    const auto* attributes = subject.As<ZFXISpecObject>()->ListPointingAttributes("ZFXISpecObject", "", "");
    if (attributes == nullptr) {
        subject.Report(kListPointing, "returns null for a step: its history is not found", Section::kFeatures);
        return;
    }
    CheckEntries(subject, kListPointing, *attributes);
    for (const ZFXISpecAttribute_var& attribute : *attributes) {
        if (attribute == nullptr)
            continue;
        const ZFXISpecObject_var owner(subject.probe.NewReference<ZFXBaseUnknown>(
            "ZFXISpecAttribute::GetOwner", [&] { return attribute->GetOwner(); }));
        if (owner == nullptr || owner->GetLateType() != LateTypes::QVROruSimHistLT)
            continue;
        const ZFXISamAnalysisScan_var history(owner);
        ZFXListValZFXBaseUnknown_var steps;
        if (history != nullptr)
            history->ListChildren(steps, ZFXISamAnalysisScan::kScanMode);
        CheckNamesOf(subject, "ZFXISamAnalysisScan::ListChildren", steps);
        if (!Contains(steps, subject.object))
            subject.Report("ZFXISamAnalysisScan::ListChildren",
                           "does not list the step below its history: no entry has the GetImpl of the step",
                           Section::kScopes);
        return;
    }
    subject.Report(kListPointing, "returns no attribute of the simulation history for a step", Section::kFeatures);
}

void CheckCaseOfPropagatingFeature(Subject& subject) {
    ZFXISpecObject_var parent;
    const HRESULT code = QVRAnalysisEntityUtils::GetParentCaseFromObject(subject.As<ZFXISpecObject>(), parent);
    ZFXISamAnalysisCase_var analysisCase(parent);
    const auto linkable = subject.As<ZFXILinkableObject>();
    if (Failed(code) && linkable != nullptr && linkable->GetOwningDocument() != nullptr)
        QVRStepUtils::GetCurrentAnalysisCaseSP(analysisCase, linkable->GetOwningDocument());
    const ZFXISamAnalysisScan_var scan(analysisCase);
    if (scan == nullptr) {
        subject.Report("AnalysisServices::GetParentCaseFromObject",
                       "finds no case that can be searched, and the document of the feature has no current case",
                       Section::kServices);
        return;
    }
    ZFXListValZFXBaseUnknown_var found;
    scan->FindObjectsOfType(LateTypes::QVROruSimHistLT, found, ZFXISamAnalysisScan::kScanMode);
    const ZFXISamAnalysisScan_var history(found[1]);
    ZFXListValZFXBaseUnknown_var steps;
    if (history == nullptr)
        subject.Report("ZFXISamAnalysisScan::FindObjectsOfType",
                       "finds below the case no simulation history that can be searched", Section::kScopes);
    else
        history->ListChildren(steps, ZFXISamAnalysisScan::kScanMode);
    for (const ZFXBaseUnknown_var& step : steps)
        if (ZFXISpecObject_var(step) == nullptr || ZFXISamAnalysisScan_var(step) == nullptr)
            subject.Report("ZFXISamAnalysisScan::ListChildren",
                           "lists a step that does not offer ZFXISpecObject and ZFXISamAnalysisScan", Section::kScopes);
}

void CheckDocument(Subject& subject) {
    constexpr const char* kOperation = "ZFXILinkableObject::GetOwningDocument";
    const auto linkable = subject.As<ZFXILinkableObject>();
    ZFXDocument* const document = linkable->GetOwningDocument();
    const ULONG before = document == nullptr ? 0 : HostProbe::References(document);
    if (document == nullptr || document != linkable->GetOwningDocument())
        subject.Report(kOperation, "returns no document, or another one each time", Section::kServices);
    else if (HostProbe::References(document) != before)
        subject.Report(kOperation, "adds a reference, although its result is borrowed", Section::kOwnership);
}

void CheckGroup(Subject& subject) {
    static_cast<void>(subject.probe.NewReference<ZFXBaseUnknown>("ZFXISamAnalysisConnector::GetGroup", [&] {
        ZFXBaseUnknown* group = nullptr;
        subject.As<ZFXISamAnalysisConnector>()->GetGroup(group);
        return group;
    }));
}

/// Makes a request that appends to a list, and checks its code and entries.
template <class Interface, class List = ZFXListValZFXBaseUnknown_var, class Request>
void CheckList(Subject& subject, const char* operation, Request request) {
    List list;
    if (Failed(request(*subject.As<Interface>(), list)))
        subject.Report(operation, "fails: it must succeed even if it appends nothing", Section::kScopes);
    CheckEntries(subject, operation, list);
}

/// The checks, by the interface that an object offers. The operation is reported if the check throws an exception.
struct Row {
    IID iid;
    const char* operation;
    void (*check)(Subject& subject);
};
constexpr Row kRows[] = {
    {IID_ZFXISpecObject, "ZFXISpecObject::GetLateType", CheckLateType},
    {IID_ZFXISpecObject, "ZFXISpecObject::GetFather", CheckFathers},
    {IID_ZFXISpecObject, "QueryInterface", CheckScopeInterface},
    {IID_ZFXISpecObject, "The factory of an adaptor", CheckExtensions},
    {IID_ZFXISpecObject, "ZFXISpecAttrAccess::GetString", CheckAliasAttribute},
    {IID_ZFXISamAnalysisEntity, kGetParentSets, CheckParentSets},
    {IID_QVRIStep, kListPointing, CheckHistoryOfStep},
    {IID_QVRIPropagatingFeature, "AnalysisServices::GetParentCaseFromObject", CheckCaseOfPropagatingFeature},
    {IID_ZFXILinkableObject, "ZFXILinkableObject::GetOwningDocument", CheckDocument},
    {IID_ZFXISamAnalysisConnector, "ZFXISamAnalysisConnector::GetGroup", CheckGroup},
    {IID_ZFXISamAnalysisScan, "ZFXISamAnalysisScan::ListChildren",
     [](Subject& subject) {
         CheckList<ZFXISamAnalysisScan>(subject, "ZFXISamAnalysisScan::ListChildren", [](auto& scan, auto& list) {
             return scan.ListChildren(list, ZFXISamAnalysisScan::kScanMode);
         });
     }},
    {IID_ZFXISamAnalysisSet, "ZFXISamAnalysisSet::ListMembers",
     [](Subject& subject) {
         CheckList<ZFXISamAnalysisSet, ZFXListValZFXISpecObject_var>(
             subject, "ZFXISamAnalysisSet::ListMembers", [](auto& set, auto& list) {
                 return set.ListMembers(list, CLSID_ZFXBaseUnknown, ZFXISamAnalysisSet::kMemberFlag);
             });
     }},
    {IID_ZFXISamAnalysisModel, "ZFXISamAnalysisModel::ListAnalysisCases",
     [](Subject& subject) {
         CheckList<ZFXISamAnalysisModel>(subject, "ZFXISamAnalysisModel::ListAnalysisCases",
                                         [](auto& model, auto& list) { return model.ListAnalysisCases(list); });
     }},
    {IID_ZFXISamAnalysisSupport, "ZFXISamAnalysisSupport::ListConnectors",
     [](Subject& subject) {
         CheckList<ZFXISamAnalysisSupport>(subject, "ZFXISamAnalysisSupport::ListConnectors",
                                           [](auto& support, auto& list) { return support.ListConnectors(list); });
     }},
    {IID_QVRISamAnalysisConnectionDesign, "QVRISamAnalysisConnectionDesign::GetMasterAndSlaveConnectors",
     [](Subject& subject) {
         CheckList<QVRISamAnalysisConnectionDesign>(
             subject, "QVRISamAnalysisConnectionDesign::GetMasterAndSlaveConnectors",
             [](auto& design, auto& list) { return design.GetMasterAndSlaveConnectors(list, list); });
     }},
    {IID_ZFXISpecObject, "ZFXISpecObject::GetLateType", CheckThatTheLateTypeIsConstant},
};

void CheckObject(Subject subject) {
    const ULONG before = HostProbe::References(subject.object);
    for (const Row& row : kRows)
        if (CastTo(subject.object, row.iid) != nullptr)
            subject.probe.Run(row.operation, [&] { row.check(subject); });
    const ULONG after = HostProbe::References(subject.object);
    if (after > before)
        subject.Report("The requests", "leave references on the object: it is never destroyed", Section::kOwnership);
    if (after < before)
        subject.Report("The requests", "remove references of others: the object is destroyed too early",
                       Section::kOwnership);
}

/// Makes a request to the services that sets `result`. Reports a request that succeeds without a result.
template <class Result, class Request>
void CheckResult(HostProbe& probe, const char* operation, const Result& result, Request request) {
    HRESULT code = S_OK;
    if (probe.Run(operation, [&] { code = request(); }) && !Failed(code) && result == nullptr)
        probe.Report(operation, "succeeds without a result: it must fail if there is none", Section::kServices);
}

} // namespace

int ZFXCheckBinding(ZFXBaseUnknown* object, std::vector<std::string>& report) {
    assert(object != nullptr && "ZFXCheckBinding: the object is null");
    HostProbe probe(report);
    probe.Run("QueryInterface", [&] { probe.CheckCasts(*object); });
    if (probe.Faults() == 0)
        CheckObject({object, probe, {}});
    return probe.Faults();
}

int ZFXCheckServices(std::vector<std::string>& report) {
    HostProbe probe(report);
    AnalysisServices* const services = AnalysisServices::Installed();
    if (services == nullptr) {
        probe.Report("AnalysisServices::Install",
                     AnalysisServices::WereDestroyedWhileInstalled()
                         ? "was not called with null before the services were destroyed: no services are installed"
                         : "was not called: no services are installed, and requests to them fail",
                     Section::kServices);
        return probe.Faults();
    }
    ZFXListValZFXBaseUnknown_var cases;
    ZFXListValZFXISpecObject_var jobs;
    probe.Run("AnalysisServices::GetAllAnalysisCases", [&] { services->GetAllAnalysisCases(cases, nullptr); });
    CheckEntries({{}, probe, {}}, "AnalysisServices::GetAllAnalysisCases", cases);
    probe.Run("AnalysisServices::GetJobs", [&] { services->GetJobs(cases, jobs); });
    CheckEntries({{}, probe, {}}, "AnalysisServices::GetJobs", jobs);
    ZFXISamAnalysisModel_var model;
    CheckResult(probe, "AnalysisServices::GetAnalysisModel", model,
                [&] { return services->GetAnalysisModel(model, nullptr); });
    ZFXIMSHMeshManager_var manager;
    CheckResult(probe, "AnalysisServices::GetMeshManager", manager,
                [&] { return services->GetMeshManager(manager, nullptr); });
    ZFXISamAnalysisCase_var current;
    probe.Run("AnalysisServices::GetCurrentAnalysisCaseSP",
              [&] { services->GetCurrentAnalysisCaseSP(current, nullptr); });
    return probe.Faults();
}

int ZFXCheckModule(std::vector<std::string>& report) {
    HostProbe probe(report);
    const char* const module = "The module QVRNameUtility";
    if (fct_FindMetaObject("QVREFeatureAlias")->CountAdaptorFactories() == 0)
        probe.Report(module, "is not loaded: all names are stored without a check", Section::kLink);
    else
        for (const LateTypes::Row& row : LateTypes::kRows)
            if (row.alias == LateTypes::Alias::Guarded &&
                fct_FindMetaObject(row.lateType)->FindAdaptorFactory(IID_ZFXIAlias) == nullptr)
                probe.Report(module, std::string("does not guard the late type ") + row.lateType, Section::kLink);
    if (!MessageCatalog::Find("QVRNameUtility", "NameLengthERR_01.Diagnostic"))
        probe.Report("MessageCatalog::Find", "finds no catalog \"QVRNameUtility\": users see ids instead of messages",
                     Section::kErrors);
    return probe.Faults();
}

int ZFXCheckReleased(ZFXBaseUnknown* object, unsigned references, std::vector<std::string>& report) {
    assert(object != nullptr && "ZFXCheckReleased: the object is null");
    HostProbe probe(report);
    const unsigned found = HostProbe::References(object);
    if (found > references)
        probe.Report("QVRGenI18NUtils::ResetAllLists",
                     "was not called before the document closes, or a handle was not released: the object has " +
                         std::to_string(found) + " references, the host " + std::to_string(references),
                     Section::kErrors);
    return probe.Faults();
}

int ZFXPrintBindingFaults(ZFXBaseUnknown* object) {
    std::vector<std::string> report;
    const int faults = ZFXCheckBinding(object, report);
    for (const std::string& sentence : report)
        std::cerr << sentence << std::endl;
    return faults;
}
