// What the faces of an object answer. Each asks the faults first.

#include "memory-model/MemoryObject.h"
#include "memory-model/MemorySession.h"

#include <string_view>

HRESULT MemoryPointingAttribute::QueryInterface(const IID& iid, void** face) {
    if (face == nullptr || iid != IID_ZFXISpecAttribute)
        return ZFXISpecAttribute::QueryInterface(iid, face);
    AddRef();
    *face = this;
    return S_OK;
}

ZFXBaseUnknown* MemoryPointingAttribute::GetOwner() {
    if (m_owner == nullptr || !m_owner->BeginRequest(MemoryRequest::GetOwner).filled)
        return nullptr;
    m_owner->AddRef();
    return m_owner;
}

void MemoryZFXIAlias::SetAlias(const ZFXUnicodeString& alias) {
    if (Object().BeginRequest(MemoryRequest::SetAlias).filled)
        Object().alias = alias;
}

ZFXUnicodeString MemoryZFXIAlias::GetAlias() {
    return Object().BeginRequest(MemoryRequest::GetAlias).filled ? Object().alias : ZFXUnicodeString();
}

ZFXUnicodeString MemoryZFXISpecObject::GetLateType() {
    return Object().BeginRequest(MemoryRequest::GetLateType).filled ? Object().lateType->name : ZFXUnicodeString();
}

namespace {

ZFXBaseUnknown* WithReference(MemoryObject* object) {
    if (object != nullptr)
        object->AddRef();
    return object;
}

void AppendAll(const MemoryObjects& objects, ZFXListValZFXBaseUnknown_var& list) {
    list.Reserve(list.Size() + static_cast<int>(objects.size()));
    for (MemoryObject* object : objects)
        list.Append(ZFXBaseUnknown_var(object));
}

} // namespace

ZFXBaseUnknown* MemoryZFXISpecObject::GetFather() {
    return Object().BeginRequest(MemoryRequest::GetFather).filled ? WithReference(Object().father) : nullptr;
}

ZFXListValZFXISpecAttribute_var* MemoryZFXISpecObject::ListPointingAttributes(const char*, const ZFXUnicodeString&,
                                                                              const ZFXUnicodeString&) {
    return Object().BeginRequest(MemoryRequest::ListPointingAttributes).filled ? &Object().Extras().pointing : nullptr;
}

ZFXISpecAttrKey* MemoryZFXISpecAttrAccess::GetAttrKey(const char* name) {
    if (!Object().BeginRequest(MemoryRequest::GetAttrKey).filled || name == nullptr || Object().document == nullptr)
        return nullptr;
    MemorySession& session = Object().document->session;
    if (std::string_view(name) == "Alias")
        return Object().aliasKey ? session.AliasKey() : nullptr;
    return Object().ExtrasOrNone().attributes.contains(name) ? session.KeyOf(name) : nullptr;
}

void MemoryZFXISpecAttrAccess::SetString(ZFXISpecAttrKey* key, const ZFXUnicodeString& value, int) {
    if (!Object().BeginRequest(MemoryRequest::SetString).filled || key == nullptr)
        return;
    const MemoryAttrKey& named = static_cast<MemoryAttrKey&>(*key);
    (named.isAlias ? Object().alias : Object().Extras().attributes[named.name]) = value;
}

ZFXUnicodeString MemoryZFXISpecAttrAccess::GetString(ZFXISpecAttrKey* key, int) {
    if (!Object().BeginRequest(MemoryRequest::GetString).filled || key == nullptr)
        return {};
    const MemoryAttrKey& named = static_cast<MemoryAttrKey&>(*key);
    if (named.isAlias)
        return Object().alias;
    const auto& attributes = Object().ExtrasOrNone().attributes;
    const auto found = attributes.find(named.name);
    return found == attributes.end() ? ZFXUnicodeString() : found->second;
}

ZFXDocument* MemoryZFXILinkableObject::GetOwningDocument() {
    return Object().BeginRequest(MemoryRequest::GetOwningDocument).filled ? Object().document : nullptr;
}

HRESULT MemoryZFXISamAnalysisModel::ListAnalysisCases(ZFXListValZFXBaseUnknown_var& cases) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::ListAnalysisCases);
    if (response.filled)
        for (MemoryObject* child : Object().ExtrasOrNone().children)
            if (child->kind == MemoryKind::Case)
                cases.Append(ZFXBaseUnknown_var(child));
    return response.code;
}

HRESULT MemoryZFXISamAnalysisSet::ListMembers(ZFXListValZFXISpecObject_var& members, const IID&, int) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::ListMembers);
    if (!response.filled)
        return response.code;
    const MemoryObjects& objects = Object().ExtrasOrNone().members;
    members.Reserve(members.Size() + static_cast<int>(objects.size()));
    for (MemoryObject* member : objects)
        members.Append(Face<ZFXISpecObject>(member));
    return response.code;
}

HRESULT MemoryZFXISamAnalysisScan::FindObjectsOfType(const ZFXUnicodeString& lateType,
                                                     ZFXListValZFXBaseUnknown_var& found, int) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::FindObjectsOfType);
    if (!response.filled)
        return response.code;
    const MemoryLateType* wanted = &MemoryLateType::Of(lateType);
    const MemoryObjects& children = Object().ExtrasOrNone().children;
    MemoryObjects ahead(children.rbegin(), children.rend()); // the next one last
    while (!ahead.empty()) {
        MemoryObject* next = ahead.back();
        ahead.pop_back();
        if (next->lateType == wanted)
            found.Append(ZFXBaseUnknown_var(next));
        const MemoryObjects& below = next->ExtrasOrNone().children;
        ahead.insert(ahead.end(), below.rbegin(), below.rend());
    }
    return response.code;
}

HRESULT MemoryZFXISamAnalysisScan::ListChildren(ZFXListValZFXBaseUnknown_var& children, int) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::ListChildren);
    if (response.filled)
        AppendAll(Object().ExtrasOrNone().children, children);
    return response.code;
}

HRESULT MemoryZFXISamAnalysisEntity::GetParentSets(ZFXListValZFXBaseUnknown_var*& sets) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::GetParentSets);
    if (!response.filled)
        return response.code;
    auto list = std::make_unique<ZFXListValZFXBaseUnknown_var>();
    AppendAll(Object().parentSets, *list);
    sets = list.release();
    return response.code;
}

int MemoryQVRIPropagatingFeature::IsPropagated() {
    return Object().BeginRequest(MemoryRequest::IsPropagated).filled && Object().propagated ? 1 : 0;
}

HRESULT MemoryZFXISamAnalysisSupport::ListConnectors(ZFXListValZFXBaseUnknown_var& connectors) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::ListConnectors);
    if (response.filled)
        AppendAll(Object().ExtrasOrNone().connectors, connectors);
    return response.code;
}

HRESULT MemoryZFXISamAnalysisConnector::GetGroup(ZFXBaseUnknown*& group) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::GetGroup);
    if (response.filled)
        group = WithReference(Object().ExtrasOrNone().group);
    return response.code;
}

HRESULT
MemoryQVRISamAnalysisConnectionDesign::GetMasterAndSlaveConnectors(ZFXListValZFXBaseUnknown_var& master,
                                                                   ZFXListValZFXBaseUnknown_var& slave) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::GetMasterAndSlaveConnectors);
    if (response.filled) {
        AppendAll(Object().ExtrasOrNone().master, master);
        AppendAll(Object().ExtrasOrNone().slave, slave);
    }
    return response.code;
}

HRESULT MemoryZFXISamExplicit::GetExplicitChild(ZFXAnalysisExplicitChild& child, int) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::GetExplicitChild);
    if (response.filled)
        child.View(&Object().Extras().faces.explicitData);
    return response.code;
}

HRESULT MemoryZFXExplicitData::ReadTag(int& tag) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::GetTag);
    if (!response.filled)
        return response.code;
    const std::optional<int>& known = Object().ExtrasOrNone().tag;
    if (!known)
        return E_FAIL;
    tag = *known;
    return response.code;
}

ZFXUnicodeString MemoryZFXIMaterialFeature::GetMaterialFeatureName() {
    return Object().BeginRequest(MemoryRequest::GetMaterialFeatureName).filled ? Object().ExtrasOrNone().materialName
                                                                               : ZFXUnicodeString();
}
