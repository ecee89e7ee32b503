#pragma once

#include "collections/ZFXListVal.h"
#include "object-model/ZFXBaseUnknown.h"

#include <cassert>
#include <cstddef>
#include <type_traits>
#include <utility>

class ZFXObject;

/// A smart pointer to one interface of an object. It has one reference to the object, or is empty.
///
/// Constructing a handle from a handle or pointer of another type is the interface cast: it calls QueryInterface, and
/// the handle is empty if the object does not offer the interface. Converting to the same type or to a base needs no
/// QueryInterface call. Empty handles and null pointers are allowed; the result is an empty handle.
///
/// Use a handle for each interface pointer that is needed for more than one statement:
///
///     const ZFXIAlias_var alias(feature); // an interface cast
///     if (alias == nullptr)
///         return E_FAIL; // the feature does not offer ZFXIAlias
///     const ZFXUnicodeString name = alias->GetAlias();
///
/// A handle is not thread-safe, because the reference count of its object is not.
template <class Interface>
class ZFXHandle {
    // True if a pointer to Derived converts to a pointer to Base, constant or not.
    template <class Derived, class Base>
    static constexpr bool kDerivesFrom = std::is_convertible_v<const volatile Derived*, const volatile Base*>;
    // True for ZFXObject and its derived classes, whose bases are interfaces. A pointer to one is not converted to a
    // base but cast, because an extension can take precedence over the base.
    template <class Other>
    static constexpr bool kIsObject = kDerivesFrom<Other, ZFXObject>;
    template <class Other>
    static constexpr bool kIsSameOrBase = kDerivesFrom<Other, Interface> && (!kIsObject<Other> || kIsObject<Interface>);
    // Accepts constant objects too, so that overload resolution prefers it to the comparison of two raw pointers.
    template <class Other>
    using Comparison = std::enable_if_t<kDerivesFrom<Other, ZFXBaseUnknown> || kIsObject<Other>, bool>;
    // The type that has exactly one root: for an object with interfaces ZFXObject, because each interface has a root.
    template <class Other>
    using Rooted = std::conditional_t<kIsObject<Other>, ZFXObject, Other>;

public:
    /// Constructs an empty handle.
    /// @{
    ZFXHandle() noexcept = default;
    ZFXHandle(std::nullptr_t) noexcept {}
    /// @}
    /// Casts a borrowed pointer. Adds a reference; the caller keeps its own.
    template <class Other, class = std::enable_if_t<kDerivesFrom<Other, ZFXBaseUnknown> || kIsObject<Other>>>
    ZFXHandle(Other* object) {
        Cast(object);
    }
    /// Casts another handle, which keeps its reference.
    template <class Other>
    ZFXHandle(const ZFXHandle<Other>& other) {
        Cast(other.Get());
    }
    /// Converts another handle. To a base, moves the reference: `other` is empty afterwards. To any other interface,
    /// casts: `other` keeps its reference.
    template <class Other>
    ZFXHandle(ZFXHandle<Other>&& other) {
        if constexpr (kIsSameOrBase<Other>)
            m_pointer = other.Detach();
        else
            Cast(other.Get());
    }
    /// Copies the handle and adds a reference.
    ZFXHandle(const ZFXHandle& other) : m_pointer(other.m_pointer) {
        if (m_pointer != nullptr)
            m_pointer->AddRef();
    }
    /// Moves the reference of `other`, which is empty afterwards.
    ZFXHandle(ZFXHandle&& other) noexcept : m_pointer(std::exchange(other.m_pointer, nullptr)) {}
    /// Releases the reference.
    ~ZFXHandle() {
        if (m_pointer != nullptr)
            m_pointer->Release();
    }

    /// Copies `other` and releases the former reference.
    ZFXHandle& operator=(const ZFXHandle& other) {
        ZFXHandle(other).Swap(*this); // adds before it releases: both can refer to one object
        return *this;
    }
    /// Moves the reference of `other`, which is empty afterwards, and releases the former reference.
    ZFXHandle& operator=(ZFXHandle&& other) noexcept {
        ZFXHandle(std::move(other)).Swap(*this);
        return *this;
    }

    /// Returns a handle that owns the caller's reference to `object`, which can be null. Use it for the result of an
    /// operation marked [new reference].
    [[nodiscard]] static ZFXHandle Attach(Interface* object) noexcept {
        ZFXHandle handle;
        handle.m_pointer = object;
        return handle;
    }
    /// Returns the interface pointer with its reference, which the caller now owns. The handle is empty afterwards.
    [[nodiscard]] Interface* Detach() noexcept { return std::exchange(m_pointer, nullptr); }

    /// Returns the interface pointer, or null if the handle is empty. [borrowed]
    /// @{
    operator Interface*() const noexcept { return m_pointer; }
    Interface* Get() const noexcept { return m_pointer; }
    /// @}
    /// Returns the interface pointer. The handle must not be empty. [borrowed]
    Interface* operator->() const noexcept {
        assert(m_pointer != nullptr && "ZFXHandle::operator->: the handle is empty");
        return m_pointer;
    }
    /// Exchanges the references of both handles.
    void Swap(ZFXHandle& other) noexcept { std::swap(m_pointer, other.m_pointer); }

    /// Returns true from == if both refer to the same object or both are empty. All forms are declared: before C++20
    /// the compiler derives none from another.
    /// @{
    template <class Other>
    friend bool operator==(const ZFXHandle& a, const ZFXHandle<Other>& b) {
        return ZFXSameObject(a.Get(), b.Get());
    }
    template <class Other>
    friend bool operator!=(const ZFXHandle& a, const ZFXHandle<Other>& b) {
        return !(a == b);
    }
    template <class Other>
    friend Comparison<Other> operator==(const ZFXHandle& a, Other* b) {
        return ZFXSameObject(a.Get(), static_cast<const Rooted<Other>*>(b));
    }
    template <class Other>
    friend Comparison<Other> operator==(Other* a, const ZFXHandle& b) {
        return b == a;
    }
    template <class Other>
    friend Comparison<Other> operator!=(const ZFXHandle& a, Other* b) {
        return !(a == b);
    }
    template <class Other>
    friend Comparison<Other> operator!=(Other* a, const ZFXHandle& b) {
        return !(b == a);
    }
    friend bool operator==(const ZFXHandle& a, std::nullptr_t) noexcept { return a.m_pointer == nullptr; }
    friend bool operator==(std::nullptr_t, const ZFXHandle& b) noexcept { return b.m_pointer == nullptr; }
    friend bool operator!=(const ZFXHandle& a, std::nullptr_t) noexcept { return a.m_pointer != nullptr; }
    friend bool operator!=(std::nullptr_t, const ZFXHandle& b) noexcept { return b.m_pointer != nullptr; }
    /// @}

    /// Handles have no order. The conversion to a pointer would compare addresses of interface pointers, and one object
    /// has several.
    /// @{
    friend bool operator<(const ZFXHandle&, const ZFXHandle&) = delete;
    friend bool operator<=(const ZFXHandle&, const ZFXHandle&) = delete;
    friend bool operator>(const ZFXHandle&, const ZFXHandle&) = delete;
    friend bool operator>=(const ZFXHandle&, const ZFXHandle&) = delete;
#ifdef __cpp_impl_three_way_comparison
    friend bool operator<=>(const ZFXHandle&, const ZFXHandle&) = delete;
#endif
    /// @}

private:
    template <class Other>
    void Cast(Other* object) {
        if (object == nullptr)
            return;
        if constexpr (kIsSameOrBase<Other>) {
            m_pointer = object;
            m_pointer->AddRef();
        } else if constexpr (kIsObject<Other>) {
            Cast<ZFXBaseUnknown>(static_cast<Rooted<Other>*>(object));
        } else {
            void* result = nullptr;
            const HRESULT code = object->QueryInterface(Interface::ClassId(), &result);
            assert(Failed(code) == (result == nullptr) && "QueryInterface: the code contradicts the interface pointer");
            if (!Failed(code))
                m_pointer = static_cast<Interface*>(result);
            assert((m_pointer == nullptr || ZFXSameObject(m_pointer, object)) &&
                   "QueryInterface: the interface belongs to another object; see SetImpl");
        }
    }

    Interface* m_pointer = nullptr;
};

// The handle of an interface is named after it, with the ending _var.
using ZFXBaseUnknown_var = ZFXHandle<ZFXBaseUnknown>;
using ZFXListValZFXBaseUnknown_var = ZFXListVal<ZFXBaseUnknown_var>;
