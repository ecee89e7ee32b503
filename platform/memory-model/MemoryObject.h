#pragma once

#include "memory-model/MemoryAttributes.h"
#include "memory-model/MemoryFaults.h"
#include "memory-model/MemoryInterfaces.h"
#include "object-model/ZFXMetaClass.h"

#include <bitset>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A late type: its name and its meta class, which lists the extensions of the type.
struct MemoryLateType {
    ZFXUnicodeString name;
    ZFXMetaClass* metaClass;

    /// Returns the late type of this name. There is one object for each name; it is never destroyed.
    static const MemoryLateType& Of(const ZFXUnicodeString& name);
};

using MemoryObjects = std::vector<MemoryObject*>;

/// The data that few objects need. Most objects of a document are plain features without it.
struct MemoryExtras {
    MemoryObjects children;
    MemoryObjects members;
    MemoryObjects connectors;
    MemoryObjects master;
    MemoryObjects slave;
    MemoryObject* group = nullptr;
    ZFXListValZFXISpecAttribute_var pointing;
    std::map<std::string, ZFXUnicodeString> attributes; // without "Alias"
    std::optional<int> tag;
    ZFXUnicodeString materialName;
    std::optional<bool> property;
    std::optional<bool> amplitude;
    bool solverCase = true;
    MemoryRareInterfaces interfaces;
    MemoryInterface<ZFXExplicitData> explicitData;
};

/// An object of a document: the implementation behind its interface objects.
class MemoryObject final : public ZFXBaseUnknown {
    using Interfaces = std::bitset<32>; // by ZFXInterfaceNumber
    static_assert(static_cast<std::size_t>(ZFXInterfaceNumber::Count) <= Interfaces().size());

    // The members that a scan reads of each feature come first and are adjacent: a scope is larger than the processor's
    // caches.
    MemoryFaults* m_faults; // of the document's session; null once the document is closed
    Interfaces m_offered;
    Interfaces m_withheld;

public:
    const MemoryLateType* lateType;

private:
    MemoryInterface<ZFXIAlias> m_alias;

public:
    ZFXUnicodeString alias;

private:
    MemoryInterface<ZFXISpecObject> m_specObject;
    MemoryInterface<QVRIPropagatingFeature> m_propagatingFeature;

public:
    MemoryObject(MemoryDocumentObject* owner, MemoryKind objectKind, const MemoryLateType& type);
    ~MemoryObject() override;

    using ZFXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iid, void** result) override;

    /// Returns the extras. Creates them at the first call.
    MemoryExtras& Extras();
    /// Returns the extras, or a shared empty object if there are none.
    const MemoryExtras& ExtrasOrNone() const { return m_extras == nullptr ? NoExtras() : *m_extras; }

    /// Counts a request on this object and returns its response. After the document was closed, always kSuccess.
    MemoryResponse BeginRequest(MemoryRequest request) {
        return m_faults == nullptr ? MemoryFaults::kSuccess : m_faults->BeginRequest(request, this);
    }
    /// BeginRequest for a request that supports one value of each argument only. If an argument has another value,
    /// records the request in the faults and returns E_INVALIDARG, with the outputs not filled.
    MemoryResponse BeginRequest(MemoryRequest request, bool hasExpectedArguments) {
        const MemoryResponse response = BeginRequest(request);
        return hasExpectedArguments ? response : RejectArguments(request);
    }

    /// Offers the interface from now on.
    void Offer(const IID& iid);
    /// Offers the interface no longer. Extensions of the late type cannot add it either.
    void Withhold(const IID& iid);
    /// Returns true if the object itself offers the interface.
    bool IsOffered(ZFXInterfaceNumber number) const { return m_offered.test(static_cast<std::size_t>(number)); }
    /// Returns the object's own interface object, or null if the object does not offer the interface. Makes no request.
    /// [borrowed]
    ZFXBaseUnknown* OfferedInterface(ZFXInterfaceNumber number) {
        return IsOffered(number) ? InterfaceObject(number) : nullptr;
    }

    /// Returns the nearest object above this one in the tree that offers the interface, or null.
    MemoryObject* NearestAbove(ZFXInterfaceNumber number) const;
    /// Adds an attribute of `owner` that points at this object.
    void AddPointing(MemoryObject* owner);
    /// Returns the number of references that others have on this object and on the attributes that point at it.
    long References();
    /// Removes all links to other objects and to the document, because the document closes.
    void Detach();

    MemoryDocumentObject* document; // null once it is closed
    MemoryObject* parent = nullptr; // in the tree
    MemoryObject* father = nullptr; // the result of GetFather
    MemoryObjects parentSets;
    MemoryKind kind;
    bool aliasKey = true; // whether the attribute "Alias" has a key
    bool propagated = false;

    /// The number of objects in this process.
    static long live;

private:
    template <class Interface>
    ZFXBaseUnknown* InterfaceObject();
    ZFXBaseUnknown* InterfaceObject(ZFXInterfaceNumber number);
    static const MemoryExtras& NoExtras();
    MemoryResponse RejectArguments(MemoryRequest request);
    template <class Visit>
    void ForEachPointing(Visit visit) const {
        const ZFXListValZFXISpecAttribute_var& pointing = ExtrasOrNone().pointing;
        for (int i = 1; i <= pointing.Size(); ++i)
            visit(static_cast<MemoryPointingAttribute&>(*pointing[i].Get()));
    }

    std::unique_ptr<MemoryExtras> m_extras;
    MemoryInterface<ZFXISpecAttrAccess> m_attrAccess;
    MemoryInterface<ZFXILinkableObject> m_linkableObject;
    MemoryInterface<ZFXISamAnalysisEntity> m_entity;
};

/// Returns the interface object of an interface, or null for ZFXISpecAttribute. The object may not offer it.
template <class Interface>
ZFXBaseUnknown* MemoryObject::InterfaceObject() {
    if constexpr (kIsRareInterface<Interface>)
        return &std::get<MemoryInterface<Interface>>(Extras().interfaces);
    else if constexpr (std::is_same_v<Interface, ZFXIAlias>)
        return &m_alias;
    else if constexpr (std::is_same_v<Interface, ZFXISpecObject>)
        return &m_specObject;
    else if constexpr (std::is_same_v<Interface, ZFXISpecAttrAccess>)
        return &m_attrAccess;
    else if constexpr (std::is_same_v<Interface, ZFXILinkableObject>)
        return &m_linkableObject;
    else if constexpr (std::is_same_v<Interface, ZFXISamAnalysisEntity>)
        return &m_entity;
    else if constexpr (std::is_same_v<Interface, QVRIPropagatingFeature>)
        return &m_propagatingFeature;
    else
        return nullptr;
}

// Inline, so that a number that is known at compile time needs no switch.
inline ZFXBaseUnknown* MemoryObject::InterfaceObject(ZFXInterfaceNumber number) {
    switch (number) {
#define ZFX_INTERFACE(name)                                                                                            \
    case ZFXInterfaceNumber::name:                                                                                     \
        return InterfaceObject<name>();
#include "object-model/ZFXInterfaces.def"
#undef ZFX_INTERFACE
    case ZFXInterfaceNumber::None:
    case ZFXInterfaceNumber::Count:
        break;
    }
    return nullptr;
}

/// Returns a handle on the object's own interface object, without a request. The handle is empty if `object` is null or
/// does not offer the interface.
template <class Interface>
ZFXHandle<Interface> InterfaceOf(MemoryObject* object) {
    if (object == nullptr)
        return {};
    return ZFXHandle<Interface>(static_cast<Interface*>(object->OfferedInterface(ZFXNumberOf(Interface::ClassId()))));
}

template <class Interface>
MemoryObject& MemoryInterfaceBase<Interface>::Object() const noexcept {
    return static_cast<MemoryObject&>(*this->Implementation());
}
template <class Interface>
HRESULT MemoryInterfaceBase<Interface>::QueryInterface(const IID& iid, void** result) {
    return Object().QueryInterface(iid, result);
}
template <class Interface>
ULONG MemoryInterfaceBase<Interface>::AddRef() {
    return Object().AddRef();
}
template <class Interface>
ULONG MemoryInterfaceBase<Interface>::Release() {
    return Object().Release();
}
