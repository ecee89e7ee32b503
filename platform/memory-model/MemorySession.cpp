#include "memory-model/MemorySession.h"

#include "LateTypes.h"

#include <initializer_list>
#include <iterator>

namespace {

/// The interfaces that every object offers at first.
constexpr IID kCommonOffers[] = {IID_ZFXISpecObject, IID_ZFXIAlias, IID_ZFXISpecAttrAccess, IID_ZFXILinkableObject};

/// The further interfaces that an object of a kind offers at first.
struct KindRow {
    MemoryKind kind;
    std::initializer_list<IID> offers;
};

constexpr KindRow kKinds[] = {
    {MemoryKind::Feature, {}},
    {MemoryKind::Model, {IID_ZFXISamAnalysisModel, IID_ZFXISamAnalysisScan}},
    {MemoryKind::Case, {IID_ZFXISamAnalysisCase, IID_ZFXISamAnalysisScan}},
    {MemoryKind::History, {IID_ZFXISamAnalysisScan}},
    {MemoryKind::Step, {IID_QVRIStep, IID_ZFXISamAnalysisScan}},
    {MemoryKind::Set, {IID_ZFXISamAnalysisSet, IID_ZFXISamAnalysisScan}},
    {MemoryKind::JobContainer, {IID_ZFXISamAnalysisSet, IID_ZFXISamAnalysisScan}},
    {MemoryKind::MeshManager, {IID_ZFXIMSHMeshManager, IID_ZFXISamAnalysisSet, IID_ZFXISamAnalysisScan}},
    {MemoryKind::MeshPart, {IID_ZFXIMSHMeshPart, IID_ZFXISamExplicit}},
    {MemoryKind::Material, {IID_ZFXIMaterialFeature}},
    {MemoryKind::Group, {IID_QVRISamGroupExt}},
    {MemoryKind::Support, {IID_ZFXISamAnalysisSupport}},
    {MemoryKind::Connector, {IID_ZFXISamAnalysisConnector}},
    {MemoryKind::ConnectionDesign, {IID_QVRISamAnalysisConnectionDesign}},
};

constexpr bool AreRowsInOrder() {
    for (std::size_t i = 0; i < std::size(kKinds); ++i)
        if (kKinds[i].kind != static_cast<MemoryKind>(i))
            return false;
    return true;
}
static_assert(std::size(kKinds) == static_cast<std::size_t>(MemoryKind::Count) && AreRowsInOrder(),
              "kKinds needs one row for each kind, in the order of MemoryKind");

bool IsSet(const MemoryObject& object) { return object.IsOffered(ZFXInterfaceNumber::ZFXISamAnalysisSet); }

bool IsAmplitude(const MemoryObject& object) {
    const bool isOfKind = LateTypes::IsOfKind(object.lateType->name, LateTypes::Kind::Amplitude);
    return object.ExtrasOrNone().amplitude.value_or(isOfKind);
}

/// Returns true if the object is a property: by default, if its first set is the property set and it is not an
/// amplitude.
bool IsProperty(const MemoryObject& object) {
    const bool inPropertySet =
        !object.parentSets.empty() && object.parentSets.front()->lateType->name == LateTypes::QVRTarnisPropertySetLT;
    return object.ExtrasOrNone().property.value_or(inPropertySet && !IsAmplitude(object));
}

} // namespace

MemoryDocumentObject::MemoryDocumentObject(MemorySession& owner) : session(owner) {
    model = Make(MemoryKind::Model, "QVRAnalysisModelLT", "Analysis Model", nullptr);
    meshManager = Make(MemoryKind::MeshManager, "MSHMeshManager", "Mesh Manager", model);
}

void MemoryDocumentObject::Close() {
    for (MemoryObject* object : objects)
        object->Detach();
    for (MemoryObject* object : objects)
        object->Release();
    objects.clear();
    model = meshManager = currentCase = nullptr;
}

MemoryObject* MemoryDocumentObject::Make(MemoryKind kind, const ZFXUnicodeString& lateType,
                                         const ZFXUnicodeString& alias, MemoryObject* parent) {
    auto* object = new MemoryObject(this, kind, MemoryLateType::Of(lateType));
    objects.push_back(object);
    object->alias = alias;
    object->parent = parent;
    object->father = kind == MemoryKind::JobContainer ? model : parent;
    for (const IID& iid : kCommonOffers)
        object->Offer(iid);
    for (const IID& iid : kKinds[static_cast<std::size_t>(kind)].offers)
        object->Offer(iid);
    if (parent == nullptr)
        return object;
    parent->Extras().children.push_back(object);
    if (IsSet(*parent) && !IsSet(*object)) {
        object->Offer(IID_ZFXISamAnalysisEntity);
        parent->Extras().members.push_back(object);
        object->parentSets.push_back(parent);
        if (kind == MemoryKind::Feature && object->NearestAbove(ZFXInterfaceNumber::QVRIStep) != nullptr)
            object->Offer(IID_QVRIPropagatingFeature);
    }
    if (parent->kind == MemoryKind::History)
        object->AddPointing(parent);
    return object;
}

long MemoryDocumentObject::References() {
    long references = static_cast<long>(Count()) - 1;
    for (MemoryObject* object : objects)
        references += object->References();
    return references;
}

MemorySession::MemorySession() { Install(this); }

MemorySession::~MemorySession() {
    if (Installed() == this)
        Install(nullptr);
    for (MemoryDocumentObject* document : documents) {
        document->Close();
        document->Release();
    }
    m_aliasKey->Release();
    for (const auto& [name, key] : keys)
        key->Release();
}

MemoryAttrKey* MemorySession::KeyOf(const std::string& name) {
    MemoryAttrKey*& key = keys[name];
    if (key == nullptr)
        key = new MemoryAttrKey(name);
    key->AddRef();
    return key;
}

MemoryAttrKey* MemorySession::AliasKey() {
    m_aliasKey->AddRef();
    return m_aliasKey;
}

MemoryObject* MemorySession::Find(const ZFXBaseUnknown* interfacePointer) const {
    auto* object = interfacePointer == nullptr ? nullptr : dynamic_cast<MemoryObject*>(interfacePointer->GetImpl());
    return object != nullptr && object->document != nullptr && &object->document->session == this ? object : nullptr;
}

MemoryDocumentObject* MemorySession::DocumentOr(const ZFXDocument* document) const {
    if (document == nullptr)
        return current;
    for (MemoryDocumentObject* known : documents)
        if (known == document)
            return known;
    return nullptr;
}

HRESULT MemorySession::GetAllAnalysisCases(ZFXListValZFXBaseUnknown_var& cases, ZFXDocument* document) {
    const MemoryResponse response = faults.BeginRequest(MemoryRequest::GetAllAnalysisCases, nullptr);
    const MemoryDocumentObject* found = DocumentOr(document);
    if (!response.filled)
        return response.code;
    if (found == nullptr)
        return E_FAIL;
    for (MemoryObject* child : found->model->ExtrasOrNone().children)
        if (child->kind == MemoryKind::Case)
            cases.Append(ZFXBaseUnknown_var(child));
    return response.code;
}

HRESULT MemorySession::GetJobs(const ZFXListValZFXBaseUnknown_var& cases, ZFXListValZFXISpecObject_var& jobs) {
    const MemoryResponse response = faults.BeginRequest(MemoryRequest::GetJobs, nullptr);
    if (!response.filled)
        return response.code;
    for (int i = 1; i <= cases.Size(); ++i) {
        const MemoryObject* analysisCase = Find(cases[i]);
        if (analysisCase == nullptr)
            continue;
        for (MemoryObject* child : analysisCase->ExtrasOrNone().children)
            if (child->kind == MemoryKind::JobContainer)
                for (MemoryObject* job : child->ExtrasOrNone().members)
                    jobs.Append(InterfaceOf<ZFXISpecObject>(job));
    }
    return response.code;
}

HRESULT MemorySession::GetAnalysisModel(ZFXISamAnalysisModel_var& model, const ZFXDocument* document) {
    const MemoryResponse response = faults.BeginRequest(MemoryRequest::GetAnalysisModel, nullptr);
    const MemoryDocumentObject* found = DocumentOr(document);
    if (!response.filled)
        return response.code;
    if (found == nullptr)
        return E_FAIL;
    model = InterfaceOf<ZFXISamAnalysisModel>(found->model);
    return response.code;
}

HRESULT MemorySession::GetMeshManager(ZFXIMSHMeshManager_var& manager, const ZFXDocument* document) {
    const MemoryResponse response = faults.BeginRequest(MemoryRequest::GetMeshManager, nullptr);
    const MemoryDocumentObject* found = DocumentOr(document);
    if (!response.filled)
        return response.code;
    if (found == nullptr)
        return E_FAIL;
    manager = InterfaceOf<ZFXIMSHMeshManager>(found->meshManager);
    return response.code;
}

unsigned char MemorySession::IsTarnisAnalysisCase(ZFXISamAnalysisCase_var& analysisCase) {
    const MemoryObject* object = Find(analysisCase);
    const bool filled = faults.BeginRequest(MemoryRequest::IsTarnisAnalysisCase, object).filled;
    return filled && object != nullptr && object->ExtrasOrNone().solverCase ? 1 : 0;
}

HRESULT MemorySession::GetParentStep(const ZFXISpecObject_var& feature, ZFXISpecObject_var& step) {
    MemoryObject* object = Find(feature);
    const MemoryResponse response = faults.BeginRequest(MemoryRequest::GetParentStep, object);
    if (!response.filled)
        return response.code;
    if (object == nullptr)
        return E_FAIL;
    if (MemoryObject* found = object->NearestAbove(ZFXInterfaceNumber::QVRIStep))
        step = InterfaceOf<ZFXISpecObject>(found);
    return response.code;
}

HRESULT MemorySession::GetParentCaseFromObject(const ZFXISpecObject_var& feature, ZFXISpecObject_var& parent) {
    MemoryObject* object = Find(feature);
    const MemoryResponse response = faults.BeginRequest(MemoryRequest::GetParentCaseFromObject, object);
    if (!response.filled)
        return response.code;
    MemoryObject* found = object == nullptr ? nullptr : object->NearestAbove(ZFXInterfaceNumber::ZFXISamAnalysisCase);
    if (found == nullptr)
        return E_FAIL;
    parent = InterfaceOf<ZFXISpecObject>(found);
    return response.code;
}

unsigned char MemorySession::IsObjectAProperty(ZFXISpecObject_var& feature) {
    const MemoryObject* object = Find(feature);
    const bool filled = faults.BeginRequest(MemoryRequest::IsObjectAProperty, object).filled;
    return filled && object != nullptr && IsProperty(*object) ? 1 : 0;
}

unsigned char MemorySession::IsObjectAnAmplitude(ZFXISpecObject_var& feature) {
    const MemoryObject* object = Find(feature);
    const bool filled = faults.BeginRequest(MemoryRequest::IsObjectAnAmplitude, object).filled;
    return filled && object != nullptr && IsAmplitude(*object) ? 1 : 0;
}

HRESULT MemorySession::GetCurrentAnalysisCaseSP(ZFXISamAnalysisCase_var& analysisCase, ZFXDocument* document) {
    const MemoryResponse response = faults.BeginRequest(MemoryRequest::GetCurrentAnalysisCaseSP, nullptr);
    const MemoryDocumentObject* found = DocumentOr(document);
    if (response.filled)
        analysisCase = InterfaceOf<ZFXISamAnalysisCase>(found == nullptr ? nullptr : found->currentCase);
    return response.code;
}
