#pragma once

#include "memory-model/MemoryModel.h"
#include "object-model/ZFXMetaClass.h"

#include <bitset>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A late type: its name and the meta class that knows what extends it. One for each name, never destroyed.
struct MemoryLateType {
    ZFXUnicodeString name;
    ZFXMetaClass* metaClass;

    static const MemoryLateType& Of(const ZFXUnicodeString& name);
};

/// The key of one attribute name.
class MemoryAttrKey final : public ZFXISpecAttrKey {
public:
    explicit MemoryAttrKey(std::string keyName) : name(std::move(keyName)), isAlias(name == "Alias") {}
    const std::string name;
    const bool isAlias; // asked for far more often than all others
    long References() { return static_cast<long>(Count()) - 1; }
};

/// An attribute of its owner that points at the object which lists it.
class MemoryPointingAttribute final : public ZFXISpecAttribute {
public:
    explicit MemoryPointingAttribute(MemoryObject* owner) : m_owner(owner) {}

    using ZFXISpecAttribute::QueryInterface;
    HRESULT QueryInterface(const IID& iid, void** face) override;
    ZFXBaseUnknown* GetOwner() override;

    void ForgetOwner() noexcept { m_owner = nullptr; }
    long References() { return static_cast<long>(Count()) - 1; }

private:
    MemoryObject* m_owner;
};

/// Requests counted, and the answers that some of them were told to give.
class MemoryFaults {
public:
    MemoryResponse BeginRequest(MemoryRequest request, const MemoryObject* object) {
        ++m_requests;
        return m_rules.empty() ? kSuccess : ApplyRules(request, object);
    }
    long Requests() const noexcept { return m_requests; }
    MemoryRequest LastFault() const noexcept { return m_lastFault; }
    void Add(MemoryRequest request, const MemoryObject* object, long n, MemoryResponse response) {
        m_rules.push_back({request, object, n, response});
    }
    void Clear() {
        m_rules.clear();
        m_lastFault = MemoryRequest::Any;
    }

    static constexpr MemoryResponse kSuccess{S_OK, true};
    static constexpr long kAlways = -1;

private:
    struct Rule {
        MemoryRequest request;
        const MemoryObject* object; // null: any
        long countdown;             // of such requests; kAlways: every one
        MemoryResponse response;
    };
    MemoryResponse ApplyRules(MemoryRequest request, const MemoryObject* object);

    std::vector<Rule> m_rules;
    long m_requests = 0;
    MemoryRequest m_lastFault = MemoryRequest::Any; // none
};

/// One face of an object: an interface that forwards its root operations. Counted with the object.
template <class Interface>
class MemoryFace : public Interface {
public:
    using Interface::QueryInterface;
    HRESULT QueryInterface(const IID& iid, void** face) final;
    ULONG AddRef() final;
    ULONG Release() final;

protected:
    MemoryObject& Object() const noexcept;
};

#define MEMORY_FACE(name, operations)                                                                                  \
    class Memory##name final : public MemoryFace<name> {                                                               \
    public:                                                                                                            \
        operations                                                                                                     \
    };

MEMORY_FACE(ZFXIAlias, void SetAlias(const ZFXUnicodeString& alias) override; ZFXUnicodeString GetAlias() override;)
MEMORY_FACE(ZFXISpecObject, ZFXUnicodeString GetLateType() override; ZFXBaseUnknown * GetFather() override;
            ZFXListValZFXISpecAttribute_var * ListPointingAttributes(const char* interfaceName,
                                                                     const ZFXUnicodeString& type,
                                                                     const ZFXUnicodeString& name) override;)
MEMORY_FACE(ZFXISpecAttrAccess, ZFXISpecAttrKey* GetAttrKey(const char* name) override;
            void SetString(ZFXISpecAttrKey* key, const ZFXUnicodeString& value, int index) override;
            ZFXUnicodeString GetString(ZFXISpecAttrKey * key, int index) override;)
MEMORY_FACE(ZFXILinkableObject, ZFXDocument* GetOwningDocument() override;)
MEMORY_FACE(ZFXISamAnalysisModel, HRESULT ListAnalysisCases(ZFXListValZFXBaseUnknown_var& cases) override;)
MEMORY_FACE(ZFXISamAnalysisCase, )
MEMORY_FACE(ZFXISamAnalysisSet,
            HRESULT ListMembers(ZFXListValZFXISpecObject_var& members, const IID& filter, int flag) override;)
MEMORY_FACE(ZFXISamAnalysisScan, HRESULT FindObjectsOfType(const ZFXUnicodeString& lateType,
                                                           ZFXListValZFXBaseUnknown_var& found, int mode) override;
            HRESULT ListChildren(ZFXListValZFXBaseUnknown_var & children, int mode) override;)
MEMORY_FACE(ZFXISamAnalysisEntity, HRESULT GetParentSets(ZFXListValZFXBaseUnknown_var*& sets) override;)
MEMORY_FACE(ZFXISamAnalysisSupport, HRESULT ListConnectors(ZFXListValZFXBaseUnknown_var& connectors) override;)
MEMORY_FACE(ZFXISamAnalysisConnector, HRESULT GetGroup(ZFXBaseUnknown*& group) override;)
MEMORY_FACE(ZFXISamExplicit, HRESULT GetExplicitChild(ZFXAnalysisExplicitChild& child, int flag) override;)
MEMORY_FACE(ZFXExplicitData, HRESULT ReadTag(int& tag) override;)
MEMORY_FACE(ZFXIMSHMeshManager, )
MEMORY_FACE(ZFXIMSHMeshPart, )
MEMORY_FACE(ZFXIMaterialFeature, ZFXUnicodeString GetMaterialFeatureName() override;)
MEMORY_FACE(QVRIStep, )
MEMORY_FACE(QVRIPropagatingFeature, int IsPropagated() override;)
MEMORY_FACE(QVRISamGroupExt, )
MEMORY_FACE(QVRISamAnalysisConnectionDesign,
            HRESULT GetMasterAndSlaveConnectors(ZFXListValZFXBaseUnknown_var& master,
                                                ZFXListValZFXBaseUnknown_var& slave) override;)
#undef MEMORY_FACE

using MemoryObjects = std::vector<MemoryObject*>;

/// The faces that few objects have. A document holds many more plain features than anything else.
struct MemoryRareFaces {
    MemoryZFXISamAnalysisModel model;
    MemoryZFXISamAnalysisCase analysisCase;
    MemoryZFXISamAnalysisSet set;
    MemoryZFXISamAnalysisScan scan;
    MemoryZFXISamAnalysisSupport support;
    MemoryZFXISamAnalysisConnector connector;
    MemoryZFXISamExplicit explicitObject;
    MemoryZFXExplicitData explicitData;
    MemoryZFXIMSHMeshManager meshManager;
    MemoryZFXIMSHMeshPart meshPart;
    MemoryZFXIMaterialFeature material;
    MemoryQVRIStep step;
    MemoryQVRISamGroupExt group;
    MemoryQVRISamAnalysisConnectionDesign design;
};

/// What few objects hold.
struct MemoryExtras {
    MemoryObjects children;
    MemoryObjects members;
    MemoryObjects connectors;
    MemoryObjects master;
    MemoryObjects slave;
    MemoryObject* group = nullptr;
    ZFXListValZFXISpecAttribute_var pointing;
    std::map<std::string, ZFXUnicodeString> attributes; // beside "Alias"
    std::optional<int> tag;
    ZFXUnicodeString materialName;
    std::optional<bool> property;
    std::optional<bool> amplitude;
    bool solverCase = true;
    MemoryRareFaces faces;
};

/// An object of a document: the implementation behind all its faces.
class MemoryObject final : public ZFXBaseUnknown {
    using Interfaces = std::bitset<32>;

    // What a scan reads of each feature comes first, side by side: a scope is larger than the processor's caches.
    MemoryFaults* m_faults; // of the document's session; null once the document is closed
    Interfaces m_offered;
    Interfaces m_withheld;

public:
    const MemoryLateType* lateType;

private:
    MemoryZFXIAlias m_aliasFace;

public:
    ZFXUnicodeString alias;

private:
    MemoryZFXISpecObject m_spec;
    MemoryQVRIPropagatingFeature m_propagating;

public:
    MemoryObject(MemoryDocumentObject* owner, MemoryKind objectKind, const MemoryLateType& type);
    ~MemoryObject() override;

    using ZFXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iid, void** face) override;

    MemoryExtras& Extras();
    /// What it has of the extras, or a shared empty one.
    const MemoryExtras& ExtrasOrNone() const { return m_extras == nullptr ? NoExtras() : *m_extras; }
    MemoryResponse BeginRequest(MemoryRequest request) {
        return m_faults == nullptr ? MemoryFaults::kSuccess : m_faults->BeginRequest(request, this);
    }
    void Offer(const IID& iid);
    void Withhold(const IID& iid);
    bool IsOffered(ZFXInterfaceNumber number) const { return m_offered.test(static_cast<std::size_t>(number)); }
    /// The nearest object above this one in the tree that offers the interface, or null.
    MemoryObject* NearestAbove(ZFXInterfaceNumber number) const;
    /// The object's own face of that number, or null when it does not offer it. No request. [borrowed]
    ZFXBaseUnknown* OwnFace(ZFXInterfaceNumber number);
    /// An attribute of `owner` points at this object from now on.
    void AddPointing(MemoryObject* owner);
    /// Those that others hold, on the object or on an attribute that points at it.
    long References();
    /// The document goes: nothing of it is reached from here any more.
    void Detach();

    MemoryDocumentObject* document;
    MemoryObject* parent = nullptr; // in the tree
    MemoryObject* father = nullptr; // what GetFather answers
    MemoryObjects parentSets;
    MemoryKind kind;
    bool aliasKey = true;
    bool propagated = false;

    static long live;

private:
    ZFXBaseUnknown* FaceOf(ZFXInterfaceNumber number);
    static const MemoryExtras& NoExtras();
    template <class Visit>
    void ForEachPointing(Visit visit) const {
        const ZFXListValZFXISpecAttribute_var& pointing = ExtrasOrNone().pointing;
        for (int i = 1; i <= pointing.Size(); ++i)
            visit(static_cast<MemoryPointingAttribute&>(*pointing[i].Get()));
    }

    std::unique_ptr<MemoryExtras> m_extras;
    MemoryZFXISpecAttrAccess m_attributes;
    MemoryZFXILinkableObject m_linkable;
    MemoryZFXISamAnalysisEntity m_entity;
};

// Defined here, so that a number that is known costs no call.
inline ZFXBaseUnknown* MemoryObject::OwnFace(ZFXInterfaceNumber number) {
    return IsOffered(number) ? FaceOf(number) : nullptr;
}

/// The face of that number. Offered ones have been made, so a query allocates nothing.
inline ZFXBaseUnknown* MemoryObject::FaceOf(ZFXInterfaceNumber number) {
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

/// A handle on the object's own face, without a request; empty when there is no object or it does not offer it.
template <class Interface>
ZFXHandle<Interface> Face(MemoryObject* object) {
    if (object == nullptr)
        return {};
    return ZFXHandle<Interface>(static_cast<Interface*>(object->OwnFace(ZFXNumberOf(Interface::ClassId()))));
}

template <class Interface>
MemoryObject& MemoryFace<Interface>::Object() const noexcept {
    return static_cast<MemoryObject&>(*this->Implementation());
}
template <class Interface>
HRESULT MemoryFace<Interface>::QueryInterface(const IID& iid, void** face) {
    return Object().QueryInterface(iid, face);
}
template <class Interface>
ULONG MemoryFace<Interface>::AddRef() {
    return Object().AddRef();
}
template <class Interface>
ULONG MemoryFace<Interface>::Release() {
    return Object().Release();
}
