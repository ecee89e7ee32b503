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

MemoryResponse MemoryFaults::ApplyRules(MemoryRequest request, const MemoryObject* object) {
    MemoryResponse response = kSuccess;
    bool found = false;
    // Every rule that is meant counts the request, whichever of them answers it: the first that is due.
    std::erase_if(m_rules, [&](Rule& rule) {
        const bool meant = (rule.request == MemoryRequest::Any || rule.request == request) &&
                           (rule.object == nullptr || rule.object == object);
        const bool due = meant && (rule.countdown == kAlways || --rule.countdown == 0);
        if (due && !std::exchange(found, true)) {
            response = rule.response;
            m_lastFault = request;
        }
        return due && rule.countdown != kAlways;
    });
    return response;
}

MemoryObject::MemoryObject(MemoryDocumentObject* owner, MemoryKind objectKind, const MemoryLateType& type)
    : m_faults(owner == nullptr ? nullptr : &owner->session.faults),
      lateType(&type),
      document(owner),
      kind(objectKind) {
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

const MemoryExtras& MemoryObject::NoExtras() {
    static const MemoryExtras none;
    return none;
}

void MemoryObject::Offer(const IID& iid) {
    const auto number = static_cast<std::size_t>(ZFXNumberOf(iid));
    m_offered.set(number);
    m_withheld.reset(number);
    FaceOf(ZFXNumberOf(iid)); // made now, so that a query never makes anything
}

void MemoryObject::Withhold(const IID& iid) {
    const auto number = static_cast<std::size_t>(ZFXNumberOf(iid));
    m_offered.reset(number);
    m_withheld.set(number);
}

MemoryObject* MemoryObject::NearestAbove(ZFXInterfaceNumber number) const {
    MemoryObject* at = parent;
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
    m_faults = nullptr;
    parent = father = nullptr;
    parentSets.clear();
    if (m_extras == nullptr)
        return;
    for (MemoryObjects* objects :
         {&m_extras->children, &m_extras->members, &m_extras->connectors, &m_extras->master, &m_extras->slave})
        objects->clear();
    m_extras->group = nullptr;
    ForEachPointing([](MemoryPointingAttribute& attribute) { attribute.ForgetOwner(); });
    m_extras->pointing.RemoveAll();
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
    if (!BeginRequest(MemoryRequest::Cast).filled || m_withheld.test(static_cast<std::size_t>(number)))
        return E_NOINTERFACE;
    // An extension that a module declared for the late type comes before the object's own interface.
    const ZFXAdaptorFactory factory =
        lateType->metaClass->IsExtended() ? lateType->metaClass->FindAdaptorFactory(iid) : nullptr;
    if (factory != nullptr) {
        *face = factory(this, nullptr);
        return *face == nullptr ? E_NOINTERFACE : S_OK;
    }
    ZFXBaseUnknown* own = OwnFace(number);
    if (own == nullptr)
        return E_NOINTERFACE;
    AddRef();
    *face = own; // the root is the first base of every face, so the addresses are the same
    return S_OK;
}
