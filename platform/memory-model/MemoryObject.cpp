#include "memory-model/MemoryObject.h"

#include "memory-model/MemorySession.h"

#include <algorithm>
#include <string_view>
#include <utility>

long MemoryObject::live = 0;

const MemoryLateType& MemoryLateType::Of(const ZFXUnicodeString& name) {
    static auto* const known = new std::map<std::u16string, MemoryLateType, std::less<>>;
    const auto found = known->find(name.Units());
    if (found != known->end())
        return found->second;
    const MemoryLateType made{name, fct_FindMetaObject(name.ConvertToChar())};
    return known->emplace(std::u16string(name.Units()), made).first->second;
}

MemoryAnswer MemoryFaults::AskRules(MemoryRequest request, const MemoryObject* object) {
    for (auto rule = m_rules.begin(); rule != m_rules.end(); ++rule) {
        const bool meant = (rule->request == MemoryRequest::Any || rule->request == request) &&
                           (rule->object == nullptr || rule->object == object);
        if (!meant)
            continue;
        if (rule->countdown == kAlways)
            return rule->answer;
        if (--rule->countdown > 0)
            continue;
        const MemoryAnswer answer = rule->answer;
        m_rules.erase(rule);
        return answer;
    }
    return kSuccess;
}

MemoryObject::MemoryObject(MemoryDocumentObject* owner, MemoryKind objectKind, const MemoryLateType& type)
    : document(owner), lateType(&type), kind(objectKind) {
    ++live;
    for (ZFXBaseUnknown* face : std::initializer_list<ZFXBaseUnknown*>{&m_spec, &m_aliasFace, &m_attributes,
                                                                       &m_linkable, &m_entity, &m_propagating})
        face->SetImpl(this);
}

MemoryObject::~MemoryObject() { --live; }

MemoryExtras& MemoryObject::Extras() {
    if (m_extras == nullptr) {
        m_extras = std::make_unique<MemoryExtras>();
        MemoryRareFaces& f = m_extras->faces;
        for (ZFXBaseUnknown* face : std::initializer_list<ZFXBaseUnknown*>{
                 &f.model, &f.analysisCase, &f.set, &f.scan, &f.support, &f.connector, &f.explicitObject,
                 &f.explicitData, &f.meshManager, &f.meshPart, &f.material, &f.step, &f.group, &f.design})
            face->SetImpl(this);
    }
    return *m_extras;
}

const MemoryExtras& MemoryObject::ExtrasOrNone() const {
    static const MemoryExtras none;
    return m_extras == nullptr ? none : *m_extras;
}

MemoryAnswer MemoryObject::Ask(MemoryRequest request) {
    return document == nullptr ? MemoryFaults::kSuccess : document->session.faults.Ask(request, this);
}

void MemoryObject::Offer(const IID& iid) {
    const auto number = static_cast<std::size_t>(ZFXNumberOf(iid));
    m_offered.set(number);
    m_withheld.reset(number);
    Face(ZFXNumberOf(iid)); // made now, so that a query never makes anything
}

void MemoryObject::Withhold(const IID& iid) {
    const auto number = static_cast<std::size_t>(ZFXNumberOf(iid));
    m_offered.reset(number);
    m_withheld.set(number);
}

ZFXISpecObject* MemoryObject::Spec() {
    if (!IsOffered(ZFXInterfaceNumber::ZFXISpecObject))
        return nullptr;
    AddRef();
    return &m_spec;
}

MemoryObject* MemoryObject::NearestOffering(ZFXInterfaceNumber number) {
    MemoryObject* at = this;
    while (at != nullptr && !at->IsOffered(number))
        at = at->parent;
    return at;
}

void MemoryObject::AddPointing(MemoryObject* owner) {
    Extras().pointing.Append(ZFXISpecAttribute_var::TakeOver(new MemoryPointingAttribute(owner)));
}

long MemoryObject::References() {
    long references = static_cast<long>(Count()) - 1;
    ForEachPointing([&](MemoryPointingAttribute& attribute) { references += attribute.References(); });
    return references;
}

void MemoryObject::Detach() {
    document = nullptr;
    parent = father = nullptr;
    holdingSets.clear();
    if (m_extras == nullptr)
        return;
    for (MemoryObjects* objects :
         {&m_extras->children, &m_extras->members, &m_extras->connectors, &m_extras->master, &m_extras->slave})
        objects->clear();
    m_extras->group = nullptr;
    ForEachPointing([](MemoryPointingAttribute& attribute) { attribute.ForgetOwner(); });
    m_extras->pointing.RemoveAll();
}

/// The face of that number. Offered ones have been made, so a query allocates nothing.
ZFXBaseUnknown* MemoryObject::Face(ZFXInterfaceNumber number) {
    switch (number) {
    case ZFXInterfaceNumber::ZFXIAlias:
        return &m_aliasFace;
    case ZFXInterfaceNumber::ZFXISpecObject:
        return &m_spec;
    case ZFXInterfaceNumber::ZFXISpecAttrAccess:
        return &m_attributes;
    case ZFXInterfaceNumber::ZFXILinkableObject:
        return &m_linkable;
    case ZFXInterfaceNumber::ZFXISamAnalysisEntity:
        return &m_entity;
    case ZFXInterfaceNumber::QVRIPropagatingFeature:
        return &m_propagating;
    case ZFXInterfaceNumber::ZFXISamAnalysisModel:
        return &Extras().faces.model;
    case ZFXInterfaceNumber::ZFXISamAnalysisCase:
        return &Extras().faces.analysisCase;
    case ZFXInterfaceNumber::ZFXISamAnalysisSet:
        return &Extras().faces.set;
    case ZFXInterfaceNumber::ZFXISamAnalysisScan:
        return &Extras().faces.scan;
    case ZFXInterfaceNumber::ZFXISamAnalysisSupport:
        return &Extras().faces.support;
    case ZFXInterfaceNumber::ZFXISamAnalysisConnector:
        return &Extras().faces.connector;
    case ZFXInterfaceNumber::ZFXISamExplicit:
        return &Extras().faces.explicitObject;
    case ZFXInterfaceNumber::ZFXIMSHMeshManager:
        return &Extras().faces.meshManager;
    case ZFXInterfaceNumber::ZFXIMSHMeshPart:
        return &Extras().faces.meshPart;
    case ZFXInterfaceNumber::ZFXIMaterialFeature:
        return &Extras().faces.material;
    case ZFXInterfaceNumber::QVRIStep:
        return &Extras().faces.step;
    case ZFXInterfaceNumber::QVRISamGroupExt:
        return &Extras().faces.group;
    case ZFXInterfaceNumber::QVRISamAnalysisConnectionDesign:
        return &Extras().faces.design;
    case ZFXInterfaceNumber::ZFXISpecAttribute: // an attribute is no object of the document's tree
    case ZFXInterfaceNumber::None:
    case ZFXInterfaceNumber::Count:
        break;
    }
    return nullptr;
}

HRESULT MemoryObject::QueryInterface(const IID& iid, void** face) {
    if (face == nullptr)
        return E_POINTER;
    *face = nullptr;
    if (iid == IID_ZFXBaseUnknown) {
        AddRef();
        *face = static_cast<ZFXBaseUnknown*>(this);
        return S_OK;
    }
    const ZFXInterfaceNumber number = ZFXNumberOf(iid);
    if (!Ask(MemoryRequest::Cast).filled || m_withheld.test(static_cast<std::size_t>(number)))
        return E_NOINTERFACE;
    // An extension that a module declared for the late type comes before the object's own interface.
    if (const ZFXAdaptorFactory factory = lateType->metaClass->FindAdaptorFactory(iid)) {
        *face = factory(this, nullptr);
        return *face == nullptr ? E_NOINTERFACE : S_OK;
    }
    if (!IsOffered(number))
        return E_NOINTERFACE;
    ZFXBaseUnknown* own = Face(number);
    if (own == nullptr)
        return E_NOINTERFACE;
    AddRef();
    *face = own; // the root is the first base of every face, so the addresses are the same
    return S_OK;
}

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

// What the faces answer. Each asks the faults first.

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
    const std::string key(name);
    const bool known = key == "Alias" ? Object().aliasKey : Object().ExtrasOrNone().attributes.contains(key);
    return known ? Object().document->session.KeyOf(key) : nullptr;
}

void MemoryZFXISpecAttrAccess::SetString(ZFXISpecAttrKey* key, const ZFXUnicodeString& value, int) {
    if (!Object().Ask(MemoryRequest::SetString).filled || key == nullptr)
        return;
    const std::string& name = static_cast<MemoryAttrKey*>(key)->name;
    (name == "Alias" ? Object().alias : Object().Extras().attributes[name]) = value;
}

ZFXUnicodeString MemoryZFXISpecAttrAccess::GetString(ZFXISpecAttrKey* key, int) {
    if (!Object().Ask(MemoryRequest::GetString).filled || key == nullptr)
        return {};
    const std::string& name = static_cast<MemoryAttrKey*>(key)->name;
    if (name == "Alias")
        return Object().alias;
    const auto& attributes = Object().ExtrasOrNone().attributes;
    const auto found = attributes.find(name);
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
        members.Append(ZFXISpecObject_var::TakeOver(member->Spec()));
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
