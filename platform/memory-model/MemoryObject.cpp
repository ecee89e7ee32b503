#include "memory-model/MemoryObject.h"

#include "memory-model/MemorySession.h"

long MemoryObject::live = 0;

const MemoryLateType& MemoryLateType::Of(const ZFXUnicodeString& name) {
    static auto* const known = new std::map<std::u16string, MemoryLateType, std::less<>>;
    const auto found = known->find(name.Units());
    if (found != known->end())
        return found->second;
    const MemoryLateType made{name, fct_FindMetaObject(name.ConvertToChar())};
    return known->emplace(std::u16string(name.Units()), made).first->second;
}

MemoryObject::MemoryObject(MemoryDocumentObject* owner, MemoryKind objectKind, const MemoryLateType& type)
    : ZFXImplements(owner == nullptr ? nullptr : &owner->session.faults, type), document(owner), kind(objectKind) {
    ++live;
}

MemoryObject::~MemoryObject() { --live; }

MemoryExtras& MemoryObject::Extras() {
    if (m_extras == nullptr)
        m_extras = std::make_unique<MemoryExtras>(this);
    return *m_extras;
}

const MemoryExtras& MemoryObject::NoExtras() {
    static const MemoryExtras none(nullptr);
    return none;
}

MemoryResponse MemoryObject::RejectArguments(MemoryRequest request) {
    if (faults != nullptr)
        faults->RecordUnexpectedArgument(request);
    return {E_INVALIDARG, false};
}

void MemoryObject::Offer(const IID& iid) {
    const auto number = static_cast<std::size_t>(ZFXNumberOf(iid));
    offered.set(number);
    withheld.reset(number);
    ImplementedInterface(ZFXNumberOf(iid)); // creates the extras if they implement it, so that a cast allocates nothing
}

void MemoryObject::Withhold(const IID& iid) {
    const auto number = static_cast<std::size_t>(ZFXNumberOf(iid));
    offered.reset(number);
    withheld.set(number);
}

MemoryObject* MemoryObject::NearestAbove(ZFXInterfaceNumber number) const {
    MemoryObject* at = parent;
    while (at != nullptr && !at->IsOffered(number))
        at = at->parent;
    return at;
}

void MemoryObject::AddPointing(MemoryObject* owner) {
    Extras().pointing.Append(ZFXISpecAttribute_var::Attach(new MemoryPointingAttribute(owner)));
}

long MemoryObject::References() {
    long references = static_cast<long>(Count()) - 1;
    ForEachPointing([&](MemoryPointingAttribute& attribute) { references += attribute.References(); });
    return references;
}

void MemoryObject::Detach() {
    document = nullptr;
    faults = nullptr;
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

HRESULT MemoryObject::QueryInterface(const IID& iid, void** result) {
    if (result == nullptr)
        return E_POINTER;
    *result = nullptr;
    if (iid == IID_ZFXBaseUnknown) { // no request
        AddRef();
        *result = Root();
        return S_OK;
    }
    const ZFXInterfaceNumber number = ZFXNumberOf(iid);
    if (!BeginRequest(MemoryRequest::Cast).filled || withheld.test(static_cast<std::size_t>(number)))
        return E_NOINTERFACE;
    // An extension that a module declared for the late type takes precedence over the object's own interface.
    if (const ZFXAdaptorFactory factory = FindExtension(iid)) {
        *result = factory(Root(), nullptr);
        return *result == nullptr ? E_NOINTERFACE : S_OK;
    }
    ZFXBaseUnknown* own = OfferedInterface(number);
    if (own == nullptr)
        return E_NOINTERFACE;
    AddRef();
    *result = own; // the root is the first base of every interface, so the address is that of the interface
    return S_OK;
}
