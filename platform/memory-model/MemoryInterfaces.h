#pragma once

#include "memory-model/MemoryModel.h"

#include <tuple>
#include <type_traits>

/// The base of all interface objects: an implementation of one interface that is part of a MemoryObject. It forwards
/// the operations of the root to the object, so that both share one reference count.
template <class Interface>
class MemoryInterfaceBase : public Interface {
public:
    using Interface::QueryInterface;
    HRESULT QueryInterface(const IID& iid, void** result) final;
    ULONG AddRef() final;
    ULONG Release() final;

protected:
    /// Returns the object that this interface object is part of.
    MemoryObject& Object() const noexcept;
};

/// The interface object of an interface. An interface with operations needs a specialization.
template <class Interface>
class MemoryInterface final : public MemoryInterfaceBase<Interface> {
    static_assert(!std::is_abstract_v<MemoryInterfaceBase<Interface>>,
                  "declare a specialization of MemoryInterface with the operations of this interface");
};

template <>
class MemoryInterface<ZFXIAlias> final : public MemoryInterfaceBase<ZFXIAlias> {
public:
    void SetAlias(const ZFXUnicodeString& alias) override;
    ZFXUnicodeString GetAlias() override;
};

template <>
class MemoryInterface<ZFXISpecObject> final : public MemoryInterfaceBase<ZFXISpecObject> {
public:
    ZFXUnicodeString GetLateType() override;
    ZFXBaseUnknown* GetFather() override;
    ZFXListValZFXISpecAttribute_var* ListPointingAttributes(const char* interfaceName, const ZFXUnicodeString& type,
                                                            const ZFXUnicodeString& name) override;
};

template <>
class MemoryInterface<ZFXISpecAttrAccess> final : public MemoryInterfaceBase<ZFXISpecAttrAccess> {
public:
    ZFXISpecAttrKey* GetAttrKey(const char* name) override;
    void SetString(ZFXISpecAttrKey* key, const ZFXUnicodeString& value, int index) override;
    ZFXUnicodeString GetString(ZFXISpecAttrKey* key, int index) override;
};

template <>
class MemoryInterface<ZFXILinkableObject> final : public MemoryInterfaceBase<ZFXILinkableObject> {
public:
    ZFXDocument* GetOwningDocument() override;
};

template <>
class MemoryInterface<ZFXISamAnalysisModel> final : public MemoryInterfaceBase<ZFXISamAnalysisModel> {
public:
    HRESULT ListAnalysisCases(ZFXListValZFXBaseUnknown_var& cases) override;
};

template <>
class MemoryInterface<ZFXISamAnalysisSet> final : public MemoryInterfaceBase<ZFXISamAnalysisSet> {
public:
    HRESULT ListMembers(ZFXListValZFXISpecObject_var& members, const IID& filter, int flag) override;
};

template <>
class MemoryInterface<ZFXISamAnalysisScan> final : public MemoryInterfaceBase<ZFXISamAnalysisScan> {
public:
    HRESULT FindObjectsOfType(const ZFXUnicodeString& lateType, ZFXListValZFXBaseUnknown_var& found, int mode) override;
    HRESULT ListChildren(ZFXListValZFXBaseUnknown_var& children, int mode) override;
};

template <>
class MemoryInterface<ZFXISamAnalysisEntity> final : public MemoryInterfaceBase<ZFXISamAnalysisEntity> {
public:
    HRESULT GetParentSets(ZFXListValZFXBaseUnknown_var*& sets) override;
};

template <>
class MemoryInterface<ZFXISamAnalysisSupport> final : public MemoryInterfaceBase<ZFXISamAnalysisSupport> {
public:
    HRESULT ListConnectors(ZFXListValZFXBaseUnknown_var& connectors) override;
};

template <>
class MemoryInterface<ZFXISamAnalysisConnector> final : public MemoryInterfaceBase<ZFXISamAnalysisConnector> {
public:
    HRESULT GetGroup(ZFXBaseUnknown*& group) override;
};

template <>
class MemoryInterface<ZFXISamExplicit> final : public MemoryInterfaceBase<ZFXISamExplicit> {
public:
    HRESULT GetExplicitChild(ZFXAnalysisExplicitChild& child, int flag) override;
};

template <>
class MemoryInterface<ZFXExplicitData> final : public MemoryInterfaceBase<ZFXExplicitData> {
public:
    HRESULT ReadTag(int& tag) override;
};

template <>
class MemoryInterface<ZFXIMaterialFeature> final : public MemoryInterfaceBase<ZFXIMaterialFeature> {
public:
    ZFXUnicodeString GetMaterialFeatureName() override;
};

template <>
class MemoryInterface<QVRIPropagatingFeature> final : public MemoryInterfaceBase<QVRIPropagatingFeature> {
public:
    int IsPropagated() override;
};

template <>
class MemoryInterface<QVRISamAnalysisConnectionDesign> final
    : public MemoryInterfaceBase<QVRISamAnalysisConnectionDesign> {
public:
    HRESULT GetMasterAndSlaveConnectors(ZFXListValZFXBaseUnknown_var& master,
                                        ZFXListValZFXBaseUnknown_var& slave) override;
};

/// The interfaces whose interface objects are members of MemoryObject itself, because nearly every object offers them.
template <class Interface>
inline constexpr bool kIsCommonInterface =
    std::disjunction_v<std::is_same<Interface, ZFXIAlias>, std::is_same<Interface, ZFXISpecObject>,
                       std::is_same<Interface, ZFXISpecAttrAccess>, std::is_same<Interface, ZFXILinkableObject>,
                       std::is_same<Interface, ZFXISamAnalysisEntity>, std::is_same<Interface, QVRIPropagatingFeature>>;

/// All other interfaces, except ZFXISpecAttribute: an attribute is not an object of the document tree.
template <class Interface>
inline constexpr bool kIsRareInterface =
    !kIsCommonInterface<Interface> && !std::is_same_v<Interface, ZFXISpecAttribute>;

/// Takes the place of an interface object that is not part of MemoryRareInterfaces, without taking space.
template <class Interface>
struct MemoryNoInterface {};

/// The interface objects of the rare interfaces. ZFXInterfaces.def lists all interfaces.
using MemoryRareInterfaces = std::tuple<
#define ZFX_INTERFACE(name) std::conditional_t<kIsRareInterface<name>, MemoryInterface<name>, MemoryNoInterface<name>>,
#include "object-model/ZFXInterfaces.def"
#undef ZFX_INTERFACE
    MemoryNoInterface<void>>; // ends the list without a comma
