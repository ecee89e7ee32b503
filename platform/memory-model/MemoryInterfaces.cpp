// The operations of the interfaces. Each begins its request first, because a response may be injected.

#include "memory-model/MemoryObject.h"
#include "memory-model/MemorySession.h"

#include <string_view>

namespace {

// The values of arguments that the module never varies. The model rejects all others.
constexpr std::string_view kPointingInterface = "ZFXISpecObject";
constexpr int kExplicitChildFlag = 1;
constexpr int kStringIndex = 0;

void AppendAll(const MemoryObjects& objects, ZFXListValZFXBaseUnknown_var& list) {
    list.Reserve(list.Size() + static_cast<int>(objects.size()));
    for (MemoryObject* object : objects)
        list.Append(ZFXBaseUnknown_var(object));
}

} // namespace

HRESULT MemoryRareInterfaces::QueryInterface(const IID& iid, void** result) {
    return m_object->QueryInterface(iid, result);
}
HRESULT MemoryRareInterfaces::QueryInterface(const char* name, void** result) {
    return m_object->QueryInterface(name, result);
}
ULONG MemoryRareInterfaces::AddRef() { return m_object->AddRef(); }
ULONG MemoryRareInterfaces::Release() { return m_object->Release(); }
ZFXBaseUnknown* MemoryRareInterfaces::GetImpl() const { return m_object->GetImpl(); }

void MemoryObject::SetAlias(const ZFXUnicodeString& newAlias) {
    if (BeginRequest(MemoryRequest::SetAlias).filled)
        alias = newAlias;
}

ZFXUnicodeString MemoryObject::GetAlias() {
    return BeginRequest(MemoryRequest::GetAlias).filled ? alias : ZFXUnicodeString();
}

ZFXUnicodeString MemoryObject::GetLateType() {
    return BeginRequest(MemoryRequest::GetLateType).filled ? lateType->name : ZFXUnicodeString();
}

ZFXBaseUnknown* MemoryObject::GetFather() {
    return BeginRequest(MemoryRequest::GetFather).filled ? ZFXNewReference(father) : nullptr;
}

ZFXListValZFXISpecAttribute_var* MemoryObject::ListPointingAttributes(const char* interfaceName,
                                                                      const ZFXUnicodeString& type,
                                                                      const ZFXUnicodeString& name) {
    const bool isExpected = interfaceName != nullptr && std::string_view(interfaceName) == kPointingInterface &&
                            type.IsNull() != 0 && name.IsNull() != 0;
    const bool filled = BeginRequest(MemoryRequest::ListPointingAttributes, isExpected).filled;
    return filled ? &Extras().pointing : nullptr;
}

ZFXISpecAttrKey* MemoryObject::GetAttrKey(const char* name) {
    if (!BeginRequest(MemoryRequest::GetAttrKey).filled || name == nullptr || document == nullptr)
        return nullptr;
    MemorySession& session = document->session;
    if (std::string_view(name) == "Alias")
        return aliasKey ? session.AliasKey() : nullptr;
    return ExtrasOrNone().attributes.contains(name) ? session.KeyOf(name) : nullptr;
}

void MemoryObject::SetString(ZFXISpecAttrKey* key, const ZFXUnicodeString& value, int index) {
    if (!BeginRequest(MemoryRequest::SetString, index == kStringIndex).filled || key == nullptr)
        return;
    const MemoryAttrKey& named = static_cast<MemoryAttrKey&>(*key);
    (named.isAlias ? alias : Extras().attributes[named.name]) = value;
}

ZFXUnicodeString MemoryObject::GetString(ZFXISpecAttrKey* key, int index) {
    if (!BeginRequest(MemoryRequest::GetString, index == kStringIndex).filled || key == nullptr)
        return {};
    const MemoryAttrKey& named = static_cast<MemoryAttrKey&>(*key);
    if (named.isAlias)
        return alias;
    const auto& attributes = ExtrasOrNone().attributes;
    const auto found = attributes.find(named.name);
    return found == attributes.end() ? ZFXUnicodeString() : found->second;
}

ZFXDocument* MemoryObject::GetOwningDocument() {
    return BeginRequest(MemoryRequest::GetOwningDocument).filled ? document : nullptr;
}

HRESULT MemoryRareInterfaces::ListAnalysisCases(ZFXListValZFXBaseUnknown_var& cases) {
    const MemoryResponse response = m_object->BeginRequest(MemoryRequest::ListAnalysisCases);
    if (response.filled)
        for (MemoryObject* child : m_object->ExtrasOrNone().children)
            if (child->kind == MemoryKind::Case)
                cases.Append(ZFXBaseUnknown_var(child));
    return response.code;
}

HRESULT MemoryRareInterfaces::ListMembers(ZFXListValZFXISpecObject_var& members, const IID& filter, int flag) {
    const MemoryResponse response = m_object->BeginRequest(
        MemoryRequest::ListMembers, filter == CLSID_ZFXBaseUnknown && flag == ZFXISamAnalysisSet::kMemberFlag);
    if (!response.filled)
        return response.code;
    const MemoryObjects& objects = m_object->ExtrasOrNone().members;
    members.Reserve(members.Size() + static_cast<int>(objects.size()));
    for (MemoryObject* member : objects)
        members.Append(InterfaceOf<ZFXISpecObject>(member));
    return response.code;
}

HRESULT MemoryRareInterfaces::FindObjectsOfType(const ZFXUnicodeString& lateType, ZFXListValZFXBaseUnknown_var& found,
                                                int mode) {
    const MemoryResponse response =
        m_object->BeginRequest(MemoryRequest::FindObjectsOfType, mode == ZFXISamAnalysisScan::kScanMode);
    if (!response.filled)
        return response.code;
    const MemoryLateType* wanted = &MemoryLateType::Of(lateType);
    const MemoryObjects& children = m_object->ExtrasOrNone().children;
    MemoryObjects ahead(children.rbegin(), children.rend()); // a stack: the next object is the last
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

HRESULT MemoryRareInterfaces::ListChildren(ZFXListValZFXBaseUnknown_var& children, int mode) {
    const MemoryResponse response =
        m_object->BeginRequest(MemoryRequest::ListChildren, mode == ZFXISamAnalysisScan::kScanMode);
    if (response.filled)
        AppendAll(m_object->ExtrasOrNone().children, children);
    return response.code;
}

HRESULT MemoryObject::GetParentSets(ZFXListValZFXBaseUnknown_var*& sets) {
    const MemoryResponse response = BeginRequest(MemoryRequest::GetParentSets);
    if (!response.filled)
        return response.code;
    auto list = std::make_unique<ZFXListValZFXBaseUnknown_var>();
    AppendAll(parentSets, *list);
    sets = list.release();
    return response.code;
}

int MemoryObject::IsPropagated() { return BeginRequest(MemoryRequest::IsPropagated).filled && propagated ? 1 : 0; }

HRESULT MemoryRareInterfaces::ListConnectors(ZFXListValZFXBaseUnknown_var& connectors) {
    const MemoryResponse response = m_object->BeginRequest(MemoryRequest::ListConnectors);
    if (response.filled)
        AppendAll(m_object->ExtrasOrNone().connectors, connectors);
    return response.code;
}

HRESULT MemoryRareInterfaces::GetGroup(ZFXBaseUnknown*& group) {
    const MemoryResponse response = m_object->BeginRequest(MemoryRequest::GetGroup);
    if (response.filled)
        group = ZFXNewReference(m_object->ExtrasOrNone().group);
    return response.code;
}

HRESULT
MemoryRareInterfaces::GetMasterAndSlaveConnectors(ZFXListValZFXBaseUnknown_var& master,
                                                  ZFXListValZFXBaseUnknown_var& slave) {
    const MemoryResponse response = m_object->BeginRequest(MemoryRequest::GetMasterAndSlaveConnectors);
    if (response.filled) {
        AppendAll(m_object->ExtrasOrNone().master, master);
        AppendAll(m_object->ExtrasOrNone().slave, slave);
    }
    return response.code;
}

HRESULT MemoryRareInterfaces::GetExplicitChild(ZFXAnalysisExplicitChild& child, int flag) {
    const MemoryResponse response = m_object->BeginRequest(MemoryRequest::GetExplicitChild, flag == kExplicitChildFlag);
    if (response.filled)
        child.View(this);
    return response.code;
}

HRESULT MemoryRareInterfaces::ReadTag(int& tag) {
    const MemoryResponse response = m_object->BeginRequest(MemoryRequest::GetTag);
    if (!response.filled)
        return response.code;
    const std::optional<int>& known = m_object->ExtrasOrNone().tag;
    if (!known)
        return E_FAIL;
    tag = *known;
    return response.code;
}

ZFXUnicodeString MemoryRareInterfaces::GetMaterialFeatureName() {
    return m_object->BeginRequest(MemoryRequest::GetMaterialFeatureName).filled ? m_object->ExtrasOrNone().materialName
                                                                                : ZFXUnicodeString();
}
