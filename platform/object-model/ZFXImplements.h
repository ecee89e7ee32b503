#pragma once

#include "object-model/ZFXBaseUnknown.h"
#include "object-model/ZFXHandle.h"
#include "object-model/ZFXMetaClass.h"

#include <type_traits>

/// Returns the root of an object with a new reference for the caller, or null for null. Use it in operations that are
/// marked [new reference]: `return ZFXNewReference(m_father);`
template <class Object>
[[nodiscard]] ZFXBaseUnknown* ZFXNewReference(Object* object) {
    return ZFXBaseUnknown_var(object).Detach();
}

/// The part of an object that all its interfaces share: the reference count, the identity and the late type. A host
/// derives the class of its document nodes from ZFXObject and passes that class to ZFXImplements.
class ZFXObject : public ZFXBaseUnknown {
public:
    /// Creates an object with one reference. Its owner can be a handle (`ZFXHandle::Attach(new Load)`), the stack or a
    /// smart pointer. The latter two require that all other references are released before they destroy the object.
    /// @param lateType  the meta class of the late type, from `fct_FindMetaObject`; its extensions add interfaces. The
    ///                  name is that which `ZFXISpecObject::GetLateType` returns. Null for an object that is no
    ///                  feature, such as an attribute.
    explicit ZFXObject(const ZFXMetaClass* lateType)
        : m_lateType(lateType != nullptr ? lateType : ZFXnull::MetaObject()) {}

    /// Returns the name of the late type, or "ZFXnull" if the object has none. [borrowed]
    const char* LateType() const noexcept { return m_lateType->IsA(); }

protected:
    /// Returns the factory of the adaptor that an extension of the late type offers for the interface, or null.
    ZFXAdaptorFactory FindExtension(const IID& iid) const noexcept {
        return m_lateType->IsExtended() ? m_lateType->FindAdaptorFactory(iid) : nullptr;
    }
    /// Implements QueryInterface.
    /// @param iid               the interface
    /// @param own               the interface that the object itself implements, or null
    /// @param interfacePointer  receives the interface with a new reference, or null
    HRESULT Cast(const IID& iid, ZFXBaseUnknown* own, void** interfacePointer) {
        if (interfacePointer == nullptr)
            return E_POINTER;
        const ZFXAdaptorFactory factory = FindExtension(iid);
        if (factory == nullptr && own != nullptr)
            AddRef();
        // The root is the first base of every interface, so the address is that of the interface.
        *interfacePointer = factory != nullptr ? factory(this, nullptr) : own;
        return *interfacePointer == nullptr ? E_NOINTERFACE : S_OK;
    }
    /// Returns the interface that the object itself implements, without a new reference, or null. [borrowed]
    ZFXBaseUnknown* OwnInterface(const IID& iid) noexcept { return iid == IID_ZFXBaseUnknown ? this : nullptr; }

private:
    const ZFXMetaClass* m_lateType; // not null
};

/// An object with interfaces. It implements the operations of the root for all of them: one reference count, one
/// identity, and the interface cast, in which an extension of the late type takes precedence over the object's own
/// interface. The derived class implements the operations of the interfaces only:
///
///     class Load final : public ZFXImplements<ZFXObject, ZFXISpecObject, ZFXIAlias> {
///     public:
///         Load() : ZFXImplements(fct_FindMetaObject("QVRPressure")) {}
///         ZFXUnicodeString GetLateType() override { return LateType(); }
///         ...
///     };
///
/// A pointer to the object converts to handles: `ZFXIAlias_var(load)` is an interface cast. Do not call an operation of
/// an interface on the object itself: the call does not reach an extension. A pointer to the object does not convert to
/// `ZFXBaseUnknown*`, because each interface has this base: pass a `ZFXBaseUnknown_var` or a pointer to ZFXObject.
/// @tparam Object      ZFXObject or a class derived from it: the class with the data of all nodes, or another
///                     ZFXImplements. Its constructors are inherited.
/// @tparam Interfaces  the interfaces that the object offers in addition to those of `Object`
template <class Object, class... Interfaces>
class ZFXImplements : public Object, public Interfaces... {
    static_assert(std::is_base_of_v<ZFXObject, Object>, "the first argument is ZFXObject or derived from it");

public:
    using Object::Object;

    /// Returns the interface of an extension of the late type or, if there is none, that of the object.
    HRESULT QueryInterface(const IID& iid, void** interfacePointer) override {
        return this->Cast(iid, OwnInterface(iid), interfacePointer);
    }
    /// Casts to the interface of this name.
    HRESULT QueryInterface(const char* interfaceName, void** interfacePointer) override {
        return Object::QueryInterface(interfaceName, interfacePointer);
    }
    ULONG AddRef() override { return Object::AddRef(); }   ///< Adds a reference to the object.
    ULONG Release() override { return Object::Release(); } ///< Removes a reference from the object.
    /// Returns the root interface. [borrowed]
    ZFXBaseUnknown* GetImpl() const override { return const_cast<ZFXImplements*>(this)->Root(); }

protected:
    /// Returns the reference count, which all interfaces share.
    ULONG& Count() noexcept { return Object::Count(); }
    /// Returns the root interface, which is also the identity of the object. [borrowed]
    ZFXBaseUnknown* Root() noexcept { return static_cast<ZFXObject*>(this); }
    /// Returns the interface that the object itself implements, without a new reference, or null. [borrowed]
    ZFXBaseUnknown* OwnInterface(const IID& iid) noexcept {
        ZFXBaseUnknown* ownInterface = Object::OwnInterface(iid);
        static_cast<void>(
            ((iid == Interfaces::ClassId() && (ownInterface = static_cast<Interfaces*>(this)) != nullptr) || ...));
        return ownInterface;
    }
};
