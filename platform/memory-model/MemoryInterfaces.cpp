// The operations of the interface objects. Each begins its request first, because a response may be injected.

#include "memory-model/MemoryObject.h"
#include "memory-model/MemorySession.h"

#include <string_view>

namespace {

// The values of arguments that the module never varies. The model rejects all others.
constexpr std::string_view kPointingInterface = "ZFXISpecObject";
constexpr int kExplicitChildFlag = 1;
constexpr int kStringIndex = 0;

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

void MemoryInterface<ZFXIAlias>::SetAlias(const ZFXUnicodeString& alias) {
    if (Object().BeginRequest(MemoryRequest::SetAlias).filled)
        Object().alias = alias;
}

ZFXUnicodeString MemoryInterface<ZFXIAlias>::GetAlias() {
    return Object().BeginRequest(MemoryRequest::GetAlias).filled ? Object().alias : ZFXUnicodeString();
}

ZFXUnicodeString MemoryInterface<ZFXISpecObject>::GetLateType() {
    return Object().BeginRequest(MemoryRequest::GetLateType).filled ? Object().lateType->name : ZFXUnicodeString();
}

ZFXBaseUnknown* MemoryInterface<ZFXISpecObject>::GetFather() {
    return Object().BeginRequest(MemoryRequest::GetFather).filled ? WithReference(Object().father) : nullptr;
}

ZFXListValZFXISpecAttribute_var* MemoryInterface<ZFXISpecObject>::ListPointingAttributes(const char* interfaceName,
                                                                                         const ZFXUnicodeString& type,
                                                                                         const ZFXUnicodeString& name) {
    const bool isExpected = interfaceName != nullptr && std::string_view(interfaceName) == kPointingInterface &&
                            type.IsNull() != 0 && name.IsNull() != 0;
    const bool filled = Object().BeginRequest(MemoryRequest::ListPointingAttributes, isExpected).filled;
    return filled ? &Object().Extras().pointing : nullptr;
}

ZFXISpecAttrKey* MemoryInterface<ZFXISpecAttrAccess>::GetAttrKey(const char* name) {
    if (!Object().BeginRequest(MemoryRequest::GetAttrKey).filled || name == nullptr || Object().document == nullptr)
        return nullptr;
    MemorySession& session = Object().document->session;
    if (std::string_view(name) == "Alias")
        return Object().aliasKey ? session.AliasKey() : nullptr;
    return Object().ExtrasOrNone().attributes.contains(name) ? session.KeyOf(name) : nullptr;
}

void MemoryInterface<ZFXISpecAttrAccess>::SetString(ZFXISpecAttrKey* key, const ZFXUnicodeString& value, int index) {
    if (!Object().BeginRequest(MemoryRequest::SetString, index == kStringIndex).filled || key == nullptr)
        return;
    const MemoryAttrKey& named = static_cast<MemoryAttrKey&>(*key);
    (named.isAlias ? Object().alias : Object().Extras().attributes[named.name]) = value;
}

ZFXUnicodeString MemoryInterface<ZFXISpecAttrAccess>::GetString(ZFXISpecAttrKey* key, int index) {
    if (!Object().BeginRequest(MemoryRequest::GetString, index == kStringIndex).filled || key == nullptr)
        return {};
    const MemoryAttrKey& named = static_cast<MemoryAttrKey&>(*key);
    if (named.isAlias)
        return Object().alias;
    const auto& attributes = Object().ExtrasOrNone().attributes;
    const auto found = attributes.find(named.name);
    return found == attributes.end() ? ZFXUnicodeString() : found->second;
}

ZFXDocument* MemoryInterface<ZFXILinkableObject>::GetOwningDocument() {
    return Object().BeginRequest(MemoryRequest::GetOwningDocument).filled ? Object().document : nullptr;
}

HRESULT MemoryInterface<ZFXISamAnalysisModel>::ListAnalysisCases(ZFXListValZFXBaseUnknown_var& cases) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::ListAnalysisCases);
    if (response.filled)
        for (MemoryObject* child : Object().ExtrasOrNone().children)
            if (child->kind == MemoryKind::Case)
                cases.Append(ZFXBaseUnknown_var(child));
    return response.code;
}

HRESULT MemoryInterface<ZFXISamAnalysisSet>::ListMembers(ZFXListValZFXISpecObject_var& members, const IID& filter,
                                                         int flag) {
    const MemoryResponse response = Object().BeginRequest(
        MemoryRequest::ListMembers, filter == CLSID_ZFXBaseUnknown && flag == ZFXISamAnalysisSet::kMemberFlag);
    if (!response.filled)
        return response.code;
    const MemoryObjects& objects = Object().ExtrasOrNone().members;
    members.Reserve(members.Size() + static_cast<int>(objects.size()));
    for (MemoryObject* member : objects)
        members.Append(InterfaceOf<ZFXISpecObject>(member));
    return response.code;
}

HRESULT MemoryInterface<ZFXISamAnalysisScan>::FindObjectsOfType(const ZFXUnicodeString& lateType,
                                                                ZFXListValZFXBaseUnknown_var& found, int mode) {
    const MemoryResponse response =
        Object().BeginRequest(MemoryRequest::FindObjectsOfType, mode == ZFXISamAnalysisScan::kScanMode);
    if (!response.filled)
        return response.code;
    const MemoryLateType* wanted = &MemoryLateType::Of(lateType);
    const MemoryObjects& children = Object().ExtrasOrNone().children;
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

HRESULT MemoryInterface<ZFXISamAnalysisScan>::ListChildren(ZFXListValZFXBaseUnknown_var& children, int mode) {
    const MemoryResponse response =
        Object().BeginRequest(MemoryRequest::ListChildren, mode == ZFXISamAnalysisScan::kScanMode);
    if (response.filled)
        AppendAll(Object().ExtrasOrNone().children, children);
    return response.code;
}

HRESULT MemoryInterface<ZFXISamAnalysisEntity>::GetParentSets(ZFXListValZFXBaseUnknown_var*& sets) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::GetParentSets);
    if (!response.filled)
        return response.code;
    auto list = std::make_unique<ZFXListValZFXBaseUnknown_var>();
    AppendAll(Object().parentSets, *list);
    sets = list.release();
    return response.code;
}

int MemoryInterface<QVRIPropagatingFeature>::IsPropagated() {
    return Object().BeginRequest(MemoryRequest::IsPropagated).filled && Object().propagated ? 1 : 0;
}

HRESULT MemoryInterface<ZFXISamAnalysisSupport>::ListConnectors(ZFXListValZFXBaseUnknown_var& connectors) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::ListConnectors);
    if (response.filled)
        AppendAll(Object().ExtrasOrNone().connectors, connectors);
    return response.code;
}

HRESULT MemoryInterface<ZFXISamAnalysisConnector>::GetGroup(ZFXBaseUnknown*& group) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::GetGroup);
    if (response.filled)
        group = WithReference(Object().ExtrasOrNone().group);
    return response.code;
}

HRESULT
MemoryInterface<QVRISamAnalysisConnectionDesign>::GetMasterAndSlaveConnectors(ZFXListValZFXBaseUnknown_var& master,
                                                                              ZFXListValZFXBaseUnknown_var& slave) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::GetMasterAndSlaveConnectors);
    if (response.filled) {
        AppendAll(Object().ExtrasOrNone().master, master);
        AppendAll(Object().ExtrasOrNone().slave, slave);
    }
    return response.code;
}

HRESULT MemoryInterface<ZFXISamExplicit>::GetExplicitChild(ZFXAnalysisExplicitChild& child, int flag) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::GetExplicitChild, flag == kExplicitChildFlag);
    if (response.filled)
        child.View(&Object().Extras().explicitData);
    return response.code;
}

HRESULT MemoryInterface<ZFXExplicitData>::ReadTag(int& tag) {
    const MemoryResponse response = Object().BeginRequest(MemoryRequest::GetTag);
    if (!response.filled)
        return response.code;
    const std::optional<int>& known = Object().ExtrasOrNone().tag;
    if (!known)
        return E_FAIL;
    tag = *known;
    return response.code;
}

ZFXUnicodeString MemoryInterface<ZFXIMaterialFeature>::GetMaterialFeatureName() {
    return Object().BeginRequest(MemoryRequest::GetMaterialFeatureName).filled ? Object().ExtrasOrNone().materialName
                                                                               : ZFXUnicodeString();
}
