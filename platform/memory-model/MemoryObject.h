#pragma once

#include "memory-model/MemoryAttributes.h"
#include "memory-model/MemoryFaults.h"
#include "object-model/ZFXImplements.h"

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

/// The interfaces that few objects offer. They are part of an object and forward the operations of the root to it.
class MemoryRareInterfaces final : public ZFXISamAnalysisModel,
                                   public ZFXISamAnalysisCase,
                                   public ZFXISamAnalysisSet,
                                   public ZFXISamAnalysisScan,
                                   public ZFXISamAnalysisSupport,
                                   public ZFXISamAnalysisConnector,
                                   public ZFXISamExplicit,
                                   public ZFXExplicitData,
                                   public ZFXIMSHMeshManager,
                                   public ZFXIMSHMeshPart,
                                   public ZFXIMaterialFeature,
                                   public QVRIStep,
                                   public QVRISamGroupExt,
                                   public QVRISamAnalysisConnectionDesign {
public:
    explicit MemoryRareInterfaces(MemoryObject* object) : m_object(object) {}

    HRESULT QueryInterface(const IID& iid, void** result) override;
    HRESULT QueryInterface(const char* name, void** result) override;
    ULONG AddRef() override;
    ULONG Release() override;
    ZFXBaseUnknown* GetImpl() const override;
    HRESULT ListAnalysisCases(ZFXListValZFXBaseUnknown_var& cases) override;
    HRESULT ListMembers(ZFXListValZFXISpecObject_var& members, const IID& filter, int flag) override;
    HRESULT FindObjectsOfType(const ZFXUnicodeString& lateType, ZFXListValZFXBaseUnknown_var& found, int mode) override;
    HRESULT ListChildren(ZFXListValZFXBaseUnknown_var& children, int mode) override;
    HRESULT ListConnectors(ZFXListValZFXBaseUnknown_var& connectors) override;
    HRESULT GetGroup(ZFXBaseUnknown*& group) override;
    HRESULT GetExplicitChild(ZFXAnalysisExplicitChild& child, int flag) override;
    HRESULT ReadTag(int& tag) override;
    ZFXUnicodeString GetMaterialFeatureName() override;
    HRESULT GetMasterAndSlaveConnectors(ZFXListValZFXBaseUnknown_var& master,
                                        ZFXListValZFXBaseUnknown_var& slave) override;

private:
    MemoryObject* m_object;
};

/// The data that few objects need. Most objects of a document are plain features without it.
struct MemoryExtras {
    explicit MemoryExtras(MemoryObject* object) : interfaces(object) {}

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
};

/// What a scan reads of each feature. It is one base of the object, so that its members are adjacent: a scope is larger
/// than the processor's caches.
struct MemoryScanned : ZFXObject {
    using Interfaces = std::bitset<32>; // by ZFXInterfaceNumber
    static_assert(static_cast<std::size_t>(ZFXInterfaceNumber::Count) <= Interfaces().size());

    MemoryScanned(MemoryFaults* sessionFaults, const MemoryLateType& type)
        : ZFXObject(type.metaClass), faults(sessionFaults), lateType(&type) {}

    MemoryFaults* faults; // of the document's session; null once the document is closed
    Interfaces offered;
    Interfaces withheld;
    const MemoryLateType* lateType;
    ZFXUnicodeString alias;
};

/// An object of a document. It implements the interfaces that nearly every object offers; the extras implement the
/// others. MemoryInterfaces.cpp defines their operations.
class MemoryObject final : public ZFXImplements<MemoryScanned, ZFXIAlias, ZFXISpecObject, QVRIPropagatingFeature,
                                                ZFXISpecAttrAccess, ZFXILinkableObject, ZFXISamAnalysisEntity> {
public:
    MemoryObject(MemoryDocumentObject* owner, MemoryKind objectKind, const MemoryLateType& type);
    ~MemoryObject() override;

    using ZFXImplements::QueryInterface;
    HRESULT QueryInterface(const IID& iid, void** result) override;
    void SetAlias(const ZFXUnicodeString& newAlias) override;
    ZFXUnicodeString GetAlias() override;
    ZFXUnicodeString GetLateType() override;
    ZFXBaseUnknown* GetFather() override;
    ZFXListValZFXISpecAttribute_var* ListPointingAttributes(const char* interfaceName, const ZFXUnicodeString& type,
                                                            const ZFXUnicodeString& name) override;
    int IsPropagated() override;
    ZFXISpecAttrKey* GetAttrKey(const char* name) override;
    void SetString(ZFXISpecAttrKey* key, const ZFXUnicodeString& value, int index) override;
    ZFXUnicodeString GetString(ZFXISpecAttrKey* key, int index) override;
    ZFXDocument* GetOwningDocument() override;
    HRESULT GetParentSets(ZFXListValZFXBaseUnknown_var*& sets) override;

    /// Returns the extras. Creates them at the first call.
    MemoryExtras& Extras();
    /// Returns the extras, or a shared empty object if there are none.
    const MemoryExtras& ExtrasOrNone() const { return m_extras == nullptr ? NoExtras() : *m_extras; }

    /// Counts a request on this object and returns its response. After the document was closed, always kSuccess.
    MemoryResponse BeginRequest(MemoryRequest request) {
        return faults == nullptr ? MemoryFaults::kSuccess : faults->BeginRequest(request, this);
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
    bool IsOffered(ZFXInterfaceNumber number) const { return offered.test(static_cast<std::size_t>(number)); }
    /// Returns the object's own interface, or null if the object does not offer the interface. Makes no request.
    /// [borrowed]
    ZFXBaseUnknown* OfferedInterface(ZFXInterfaceNumber number) {
        return IsOffered(number) ? ImplementedInterface(number) : nullptr;
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
    /// Returns an interface, which the object may not offer. Returns null for ZFXISpecAttribute. [borrowed]
    ZFXBaseUnknown* ImplementedInterface(ZFXInterfaceNumber number);
    template <class Interface>
    ZFXBaseUnknown* ImplementedInterface();
    static const MemoryExtras& NoExtras();
    MemoryResponse RejectArguments(MemoryRequest request);
    template <class Visit>
    void ForEachPointing(Visit visit) const {
        const ZFXListValZFXISpecAttribute_var& pointing = ExtrasOrNone().pointing;
        for (int i = 1; i <= pointing.Size(); ++i)
            visit(static_cast<MemoryPointingAttribute&>(*pointing[i].Get()));
    }

    std::unique_ptr<MemoryExtras> m_extras;
};

template <class Interface>
ZFXBaseUnknown* MemoryObject::ImplementedInterface() {
    if constexpr (std::is_base_of_v<Interface, MemoryObject>)
        return static_cast<Interface*>(this);
    else if constexpr (std::is_base_of_v<Interface, MemoryRareInterfaces>)
        return static_cast<Interface*>(&Extras().interfaces);
    else
        static_assert(std::is_same_v<Interface, ZFXISpecAttribute>,
                      "add the interface to MemoryRareInterfaces. An attribute is not an object of the document tree");
    return nullptr;
}

// Inline, so that a number that is known at compile time needs no switch.
inline ZFXBaseUnknown* MemoryObject::ImplementedInterface(ZFXInterfaceNumber number) {
    switch (number) {
#define ZFX_INTERFACE(name)                                                                                            \
    case ZFXInterfaceNumber::name:                                                                                     \
        return ImplementedInterface<name>();
#include "object-model/ZFXInterfaces.def"
#undef ZFX_INTERFACE
    case ZFXInterfaceNumber::None:
    case ZFXInterfaceNumber::Count:
        break;
    }
    return nullptr;
}

/// Returns a handle on the object's own interface, without a request. The handle is empty if `object` is null or
/// does not offer the interface.
template <class Interface>
ZFXHandle<Interface> InterfaceOf(MemoryObject* object) {
    if (object == nullptr)
        return {};
    return ZFXHandle<Interface>(static_cast<Interface*>(object->OfferedInterface(ZFXNumberOf(Interface::ClassId()))));
}
