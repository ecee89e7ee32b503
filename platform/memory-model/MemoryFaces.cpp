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
    if (m_owner == nullptr || !m_owner->Ask(MemoryRequest::GetOwner).filled)
        return nullptr;
    m_owner->AddRef();
    return m_owner;
}

void MemoryZFXIAlias::SetAlias(const ZFXUnicodeString& alias) {
    if (Object().Ask(MemoryRequest::SetAlias).filled)
        Object().alias = alias;
}

ZFXUnicodeString MemoryZFXIAlias::GetAlias() {
    return Object().Ask(MemoryRequest::GetAlias).filled ? Object().alias : ZFXUnicodeString();
}

ZFXUnicodeString MemoryZFXISpecObject::GetLateType() {
    return Object().Ask(MemoryRequest::GetLateType).filled ? Object().lateType->name : ZFXUnicodeString();
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
    return Object().Ask(MemoryRequest::GetFather).filled ? WithReference(Object().father) : nullptr;
}

ZFXListValZFXISpecAttribute_var* MemoryZFXISpecObject::ListPointingAttributes(const char*, const ZFXUnicodeString&,
                                                                              const ZFXUnicodeString&) {
    return Object().Ask(MemoryRequest::ListPointingAttributes).filled ? &Object().Extras().pointing : nullptr;
}

ZFXISpecAttrKey* MemoryZFXISpecAttrAccess::GetAttrKey(const char* name) {
    if (!Object().Ask(MemoryRequest::GetAttrKey).filled || name == nullptr || Object().document == nullptr)
        return nullptr;
    MemorySession& session = Object().document->session;
    if (std::string_view(name) == "Alias")
        return Object().aliasKey ? session.AliasKey() : nullptr;
    return Object().ExtrasOrNone().attributes.contains(name) ? session.KeyOf(name) : nullptr;
}

void MemoryZFXISpecAttrAccess::SetString(ZFXISpecAttrKey* key, const ZFXUnicodeString& value, int) {
    if (!Object().Ask(MemoryRequest::SetString).filled || key == nullptr)
        return;
    const MemoryAttrKey& named = static_cast<MemoryAttrKey&>(*key);
    (named.isAlias ? Object().alias : Object().Extras().attributes[named.name]) = value;
}

ZFXUnicodeString MemoryZFXISpecAttrAccess::GetString(ZFXISpecAttrKey* key, int) {
    if (!Object().Ask(MemoryRequest::GetString).filled || key == nullptr)
        return {};
    const MemoryAttrKey& named = static_cast<MemoryAttrKey&>(*key);
    if (named.isAlias)
        return Object().alias;
    const auto& attributes = Object().ExtrasOrNone().attributes;
    const auto found = attributes.find(named.name);
    return found == attributes.end() ? ZFXUnicodeString() : found->second;
}

ZFXDocument* MemoryZFXILinkableObject::GetOwningDocument() {
    return Object().Ask(MemoryRequest::GetOwningDocument).filled ? Object().document : nullptr;
}

HRESULT MemoryZFXISamAnalysisModel::ListAnalysisCases(ZFXListValZFXBaseUnknown_var& cases) {
    const MemoryAnswer answer = Object().Ask(MemoryRequest::ListAnalysisCases);
    if (answer.filled)
        for (MemoryObject* child : Object().ExtrasOrNone().children)
            if (child->kind == MemoryKind::Case)
                cases.Append(ZFXBaseUnknown_var(child));
    return answer.code;
}

HRESULT MemoryZFXISamAnalysisSet::ListMembers(ZFXListValZFXISpecObject_var& members, const IID&, int) {
    const MemoryAnswer answer = Object().Ask(MemoryRequest::ListMembers);
    if (!answer.filled)
        return answer.code;
    const MemoryObjects& objects = Object().ExtrasOrNone().members;
    members.Reserve(members.Size() + static_cast<int>(objects.size()));
    for (MemoryObject* member : objects)
        members.Append(Face<ZFXISpecObject>(member));
    return answer.code;
}

HRESULT MemoryZFXISamAnalysisScan::FindObjectsOfType(const ZFXUnicodeString& lateType,
                                                     ZFXListValZFXBaseUnknown_var& found, int) {
    const MemoryAnswer answer = Object().Ask(MemoryRequest::FindObjectsOfType);
    if (!answer.filled)
        return answer.code;
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
    return answer.code;
}

HRESULT MemoryZFXISamAnalysisScan::ListChildren(ZFXListValZFXBaseUnknown_var& children, int) {
    const MemoryAnswer answer = Object().Ask(MemoryRequest::ListChildren);
    if (answer.filled)
        AppendAll(Object().ExtrasOrNone().children, children);
    return answer.code;
}

HRESULT MemoryZFXISamAnalysisEntity::GetParentSets(ZFXListValZFXBaseUnknown_var*& sets) {
    const MemoryAnswer answer = Object().Ask(MemoryRequest::GetParentSets);
    if (!answer.filled)
        return answer.code;
    auto list = std::make_unique<ZFXListValZFXBaseUnknown_var>();
    AppendAll(Object().holdingSets, *list);
    sets = list.release();
    return answer.code;
}

int MemoryQVRIPropagatingFeature::IsPropagated() {
    return Object().Ask(MemoryRequest::IsPropagated).filled && Object().propagated ? 1 : 0;
}

HRESULT MemoryZFXISamAnalysisSupport::ListConnectors(ZFXListValZFXBaseUnknown_var& connectors) {
    const MemoryAnswer answer = Object().Ask(MemoryRequest::ListConnectors);
    if (answer.filled)
        AppendAll(Object().ExtrasOrNone().connectors, connectors);
    return answer.code;
}

HRESULT MemoryZFXISamAnalysisConnector::GetGroup(ZFXBaseUnknown*& group) {
    const MemoryAnswer answer = Object().Ask(MemoryRequest::GetGroup);
    if (answer.filled)
        group = WithReference(Object().ExtrasOrNone().group);
    return answer.code;
}

HRESULT
MemoryQVRISamAnalysisConnectionDesign::GetMasterAndSlaveConnectors(ZFXListValZFXBaseUnknown_var& master,
                                                                   ZFXListValZFXBaseUnknown_var& slave) {
    const MemoryAnswer answer = Object().Ask(MemoryRequest::GetMasterAndSlaveConnectors);
    if (answer.filled) {
        AppendAll(Object().ExtrasOrNone().master, master);
        AppendAll(Object().ExtrasOrNone().slave, slave);
    }
    return answer.code;
}

HRESULT MemoryZFXISamExplicit::GetExplicitChild(ZFXAnalysisExplicitChild& child, int) {
    const MemoryAnswer answer = Object().Ask(MemoryRequest::GetExplicitChild);
    if (answer.filled)
        child.View(&Object().Extras().faces.explicitData);
    return answer.code;
}

HRESULT MemoryZFXExplicitData::ReadTag(int& tag) {
    const MemoryAnswer answer = Object().Ask(MemoryRequest::GetTag);
    if (!answer.filled)
        return answer.code;
    const std::optional<int>& known = Object().ExtrasOrNone().tag;
    if (!known)
        return E_FAIL;
    tag = *known;
    return answer.code;
}

ZFXUnicodeString MemoryZFXIMaterialFeature::GetMaterialFeatureName() {
    return Object().Ask(MemoryRequest::GetMaterialFeatureName).filled ? Object().ExtrasOrNone().materialName
                                                                      : ZFXUnicodeString();
}
