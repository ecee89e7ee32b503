#pragma once

#include "base/ZFXGuid.h"
#include "base/ZFXPlatformExport.h"
#include "base/ZFXResult.h"

#include <cassert>
#include <cstddef>

class ZFXMetaClass;

/// The change of an adaptor that ChangeComponentState reports to an object.
enum class ZFXComponentState { AdaptorAttached, AdaptorDetached };

/// The root of every platform object.
///
/// An object has several interface pointers: one for each interface that it offers, and those of the extensions and
/// adaptors that other modules add to it. Each interface pointer, extension and adaptor refers to its object
/// (`GetImpl`). Two pointers designate the same object exactly if `GetImpl` returns the same for both; their addresses
/// can differ.
///
/// Objects are reference counted. A new object has one reference; the Release that removes the last one destroys it.
/// An object is used by one thread at a time.
class ZFX_PLATFORM_EXPORT ZFXBaseUnknown {
public:
    ZFXBaseUnknown() = default;
    ZFXBaseUnknown(const ZFXBaseUnknown&) = delete;
    ZFXBaseUnknown& operator=(const ZFXBaseUnknown&) = delete;

    /// Casts to the interface `iid`. Returns S_OK and the interface pointer, with one reference for the caller.
    /// If SetImpl has set an implementation, returns the result of its QueryInterface; otherwise offers the root only.
    /// Failures:
    /// - E_NOINTERFACE if the object does not offer the interface; `*interfacePointer` is null;
    /// - E_POINTER if `interfacePointer` is null.
    virtual HRESULT QueryInterface(const IID& iid, void** interfacePointer);
    /// Adds one reference. Returns the new number of references.
    virtual ULONG AddRef() { return ++m_count; }
    /// Removes one reference and destroys the object if it was the last. Returns the number of references left.
    virtual ULONG Release() {
        assert(m_count > 0 && "ZFXBaseUnknown::Release: there are no references left");
        const ULONG left = --m_count;
        if (left == 0)
            delete this;
        return left;
    }
    /// Sets `count` to 0, because this platform offers no automation. Returns S_OK, or E_POINTER if `count` is null.
    virtual HRESULT GetTypeInfoCount(unsigned int* count);
    /// Returns E_NOTIMPL.
    virtual HRESULT GetTypeInfo(unsigned int index, unsigned long locale, void** info);
    /// Returns E_NOTIMPL.
    virtual HRESULT GetIDsOfNames(const IID& iid, char16_t** names, unsigned int count, unsigned long locale,
                                  long* ids);
    /// Returns E_NOTIMPL.
    virtual HRESULT Invoke(long id, const IID& iid, unsigned long locale, unsigned short flags, void* params,
                           void* result, void* exception, unsigned int* argument);
    /// Casts to the interface of this name, such as "ZFXIAlias". Results are those of the cast by identifier; a name
    /// that is null or unknown gives E_NOINTERFACE.
    virtual HRESULT QueryInterface(const char* interfaceName, void** interfacePointer);
    /// An object that is not destroyed by Release, such as one on the stack, must have only its first reference.
    virtual ~ZFXBaseUnknown();
    /// Returns the meta class of the object's class. [borrowed]
    virtual ZFXMetaClass* GetMetaObject() const;
    /// Returns the name of the object's class. [borrowed]
    virtual const char* IsA() const;
    /// Returns 1 if the object's class or one of its bases has this name, else 0.
    virtual int IsAKindOf(const char* name) const;
    /// Returns the object that this pointer refers to: the implementation's GetImpl if SetImpl has set one, else this
    /// object. Never null. [borrowed]
    virtual ZFXBaseUnknown* GetImpl() const;
    /// Makes this an interface pointer or extension of `implementation`; null makes it an object again. Takes no
    /// reference. Returns the former implementation, or null. [borrowed]
    virtual ZFXBaseUnknown* SetImpl(ZFXBaseUnknown* implementation);
    /// Returns nonzero if the object is a placeholder for no object. Returns 0 unless a class overrides it.
    virtual int IsNull() const;
    /// Returns nonzero if `other` designates the same object.
    virtual int IsEqual(const ZFXBaseUnknown* other) const;
    /// Reports to the object that `adaptor` was attached to it or detached from it. Does nothing unless a class
    /// overrides it.
    virtual void ChangeComponentState(ZFXComponentState state, ZFXBaseUnknown* adaptor);

    /// Returns the meta class. [borrowed]
    static ZFXMetaClass* MetaObject();

    /// Allocates from the platform's block allocator. Returns null if there is no memory; the new expression is then
    /// null too.
    static void* operator new(std::size_t size) noexcept;
    /// Frees a block of the platform's block allocator. Does nothing if `memory` is null.
    static void operator delete(void* memory) noexcept;
    /// Returns the number of blocks that this thread has allocated minus the number that it has freed.
    [[nodiscard]] static long LiveAllocations() noexcept;

protected:
    /// Returns the implementation that SetImpl has set, or null. [borrowed]
    ZFXBaseUnknown* Implementation() const noexcept { return m_implementation; }
    /// Returns the number of references, for a class that overrides AddRef and Release.
    ULONG& Count() noexcept { return m_count; }

private:
    ZFXBaseUnknown* m_implementation = nullptr;
    ULONG m_count = 1;
};

/// The identifier of the root interface. Every object offers it.
inline constexpr IID IID_ZFXBaseUnknown{0x5A465800U, 0, 0, {}};
/// The class identifier for members of any class.
inline constexpr IID CLSID_ZFXBaseUnknown = IID_ZFXBaseUnknown;

/// Returns the object's identity pointer, or null for null. Two interface pointers have the same identity exactly if
/// they belong to one object. A loop that compares many objects with one computes that one's identity once.
[[nodiscard]] inline const ZFXBaseUnknown* ZFXIdentityOf(const ZFXBaseUnknown* object) {
    return object == nullptr ? nullptr : object->GetImpl();
}

/// Returns true if both interface pointers belong to one object, or if both are null.
[[nodiscard]] inline bool ZFXSameObject(const ZFXBaseUnknown* a, const ZFXBaseUnknown* b) {
    return a == b || (a != nullptr && b != nullptr && a->GetImpl() == b->GetImpl());
}

/// Represents "no base class": the base class of the root class in the meta classes.
class ZFX_PLATFORM_EXPORT ZFXnull {
public:
    /// Returns the meta class. [borrowed]
    static ZFXMetaClass* MetaObject();
};
