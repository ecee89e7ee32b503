#pragma once

#include "collections/ZFXListVal.h"
#include "object-model/ZFXBaseUnknown.h"

#include <cstddef>
#include <type_traits>
#include <utility>

/// Holds one reference on an object, as one of its interfaces, or nothing.
///
/// Making a handle from a handle or pointer of another type is the interface cast: the handle takes its own
/// reference, or stays empty when the object does not offer the interface or there is no object. To the same
/// type or to a base of it no question is asked, the reference is taken. `->` needs a handle that is not
/// empty.
template <class Interface>
class ZFXHandle {
    // Whether a pointer to the one is also a pointer to the other, constant or not.
    template <class Derived, class Base>
    static constexpr bool kDerivesFrom = std::is_convertible_v<const volatile Derived*, const volatile Base*>;
    template <class Other>
    static constexpr bool kIsFace = kDerivesFrom<Other, Interface>;
    // With an object, constant or not, so that the comparison always fits better than that of two raw pointers would.
    template <class Other>
    using Comparison = std::enable_if_t<kDerivesFrom<Other, ZFXBaseUnknown>, bool>;

public:
    ZFXHandle() noexcept = default;
    /// Empty.
    ZFXHandle(std::nullptr_t) noexcept {}
    /// From a borrowed pointer. The pointer keeps its own reference.
    template <class Other, class = std::enable_if_t<kDerivesFrom<Other, ZFXBaseUnknown>>>
    ZFXHandle(Other* object) {
        Cast(object);
    }
    /// The cast; `other` keeps its own reference.
    template <class Other>
    ZFXHandle(const ZFXHandle<Other>& other) {
        Cast(other.Get());
    }
    /// To a base the reference is handed on; to another interface this is the cast, and `other` keeps its own.
    template <class Other>
    ZFXHandle(ZFXHandle<Other>&& other) {
        if constexpr (kIsFace<Other>)
            m_face = other.Detach();
        else
            Cast(other.Get());
    }
    /// One more reference.
    ZFXHandle(const ZFXHandle& other) : m_face(other.m_face) {
        if (m_face != nullptr)
            m_face->AddRef();
    }
    /// Takes the reference of `other`, which is empty afterwards.
    ZFXHandle(ZFXHandle&& other) noexcept : m_face(std::exchange(other.m_face, nullptr)) {}
    ~ZFXHandle() {
        if (m_face != nullptr)
            m_face->Release();
    }

    /// One more reference on the other's object; gives back its own.
    ZFXHandle& operator=(const ZFXHandle& other) {
        ZFXHandle(other).Swap(*this); // the new reference first: both may be the last on one object
        return *this;
    }
    /// Takes the reference of `other`; gives back its own.
    ZFXHandle& operator=(ZFXHandle&& other) noexcept {
        ZFXHandle(std::move(other)).Swap(*this);
        return *this;
    }

    /// Takes over the reference that a platform operation handed back.
    static ZFXHandle Attach(Interface* object) noexcept {
        ZFXHandle handle;
        handle.m_face = object;
        return handle;
    }

    /// The face, or null. [borrowed]
    operator Interface*() const noexcept { return m_face; }
    /// The face. [borrowed]
    Interface* operator->() const noexcept { return m_face; }
    /// The face, or null. [borrowed]
    Interface* Get() const noexcept { return m_face; }

    /// The reference goes to the caller; the handle is empty afterwards.
    Interface* Detach() noexcept { return std::exchange(m_face, nullptr); }
    /// Both change places.
    void Swap(ZFXHandle& other) noexcept { std::swap(m_face, other.m_face); }

    /// Whether both designate the same object; two empty ones are equal. All forms stand here, since before C++20 none
    /// follows from another.
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
        return ZFXSameObject(a.Get(), b);
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
    friend bool operator==(const ZFXHandle& a, std::nullptr_t) noexcept { return a.m_face == nullptr; }
    friend bool operator==(std::nullptr_t, const ZFXHandle& b) noexcept { return b.m_face == nullptr; }
    friend bool operator!=(const ZFXHandle& a, std::nullptr_t) noexcept { return a.m_face != nullptr; }
    friend bool operator!=(std::nullptr_t, const ZFXHandle& b) noexcept { return b.m_face != nullptr; }
    /// @}

    /// Handles have no order: the conversion to a pointer would order the addresses of interfaces, and one object may
    /// have several.
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
        if constexpr (kIsFace<Other>) {
            m_face = object;
            m_face->AddRef();
        } else {
            void* face = nullptr;
            if (!Failed(object->QueryInterface(Interface::ClassId(), &face)))
                m_face = static_cast<Interface*>(face);
        }
    }

    Interface* m_face = nullptr;
};

using ZFXBaseUnknown_var = ZFXHandle<ZFXBaseUnknown>;
using ZFXListValZFXBaseUnknown_var = ZFXListVal<ZFXBaseUnknown_var>;
