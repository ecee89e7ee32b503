#pragma once

#include "base/ZFXGuid.h"
#include "base/ZFXPlatformExport.h"
#include "base/ZFXResult.h"

#include <cstddef>

class ZFXMetaClass;

/// What ChangeComponentState tells an object about one of its adaptors.
enum class ZFXComponentState { AdaptorAttached, AdaptorDetached };

/// The root of every platform object.
///
/// An object is one thing with many faces: its interfaces, and the extensions and adaptors that other modules
/// add to it. A face or an extension has an implementation (`GetImpl`), the object that it belongs to; two
/// pointers designate the same object when their implementations are one, whatever their addresses.
///
/// Reference counted, by one thread at a time: made with one reference, destroyed by the Release that gives
/// back the last one.
class ZFX_PLATFORM_EXPORT ZFXBaseUnknown {
public:
    ZFXBaseUnknown() = default;
    ZFXBaseUnknown(const ZFXBaseUnknown&) = delete;
    ZFXBaseUnknown& operator=(const ZFXBaseUnknown&) = delete;

    /// S_OK and the face with one reference for the caller, or a negative code and null. An object without an
    /// implementation of its own offers nothing but its root; an extension offers what its object offers.
    virtual HRESULT QueryInterface(const IID& iid, void** face);
    /// One reference more; their number.
    virtual ULONG AddRef() { return ++m_count; }
    /// One reference less; how many are left. The last one destroys the object.
    virtual ULONG Release() {
        const ULONG left = --m_count;
        if (left == 0)
            delete this;
        return left;
    }
    /// Automation is not offered by this platform: the count is 0, the other three answer E_NOTIMPL.
    virtual HRESULT GetTypeInfoCount(unsigned int* count);
    /// E_NOTIMPL.
    virtual HRESULT GetTypeInfo(unsigned int index, unsigned long locale, void** info);
    /// E_NOTIMPL.
    virtual HRESULT GetIDsOfNames(const IID& iid, char16_t** names, unsigned int count, unsigned long locale,
                                  long* ids);
    /// E_NOTIMPL.
    virtual HRESULT Invoke(long id, const IID& iid, unsigned long locale, unsigned short flags, void* params,
                           void* result, void* exception, unsigned int* argument);
    /// By the interface's name, such as "ZFXIAlias".
    virtual HRESULT QueryInterface(const char* interfaceName, void** face);
    virtual ~ZFXBaseUnknown();
    /// The meta class of the object's class. [borrowed]
    virtual ZFXMetaClass* GetMetaObject() const;
    /// The name of the object's class.
    virtual const char* IsA() const;
    /// Nonzero when the class, or one that it derives from, has this name.
    virtual int IsAKindOf(const char* name) const;
    /// The object behind this face or extension; the object itself when it is one. [borrowed]
    virtual ZFXBaseUnknown* GetImpl() const;
    /// Makes this a face or extension of `implementation`; returns what it was of before. Takes no reference.
    virtual ZFXBaseUnknown* SetImpl(ZFXBaseUnknown* implementation);
    /// Nonzero when there is nothing behind it.
    virtual int IsNull() const;
    /// Nonzero when both designate the same object.
    virtual int IsEqual(const ZFXBaseUnknown* other) const;
    /// An adaptor was made on this object or went. The object need not do anything.
    virtual void ChangeComponentState(ZFXComponentState state, ZFXBaseUnknown* adaptor);

    /// The meta class. [borrowed]
    static ZFXMetaClass* MetaObject();

    /// The platform's allocator: null when there is no memory, so that a new expression gives null too.
    static void* operator new(std::size_t size) noexcept;
    /// Gives it back; null is nothing.
    static void operator delete(void* memory) noexcept;
    /// Blocks of the platform's allocator that this thread took and did not give back.
    static long LiveAllocations() noexcept;

protected:
    /// What SetImpl was given; null for an object that is its own implementation.
    ZFXBaseUnknown* Implementation() const noexcept { return m_implementation; }
    /// The references.
    ULONG& Count() noexcept { return m_count; }

private:
    ZFXBaseUnknown* m_implementation = nullptr;
    ULONG m_count = 1;
};

/// The identifier that every object answers with itself.
inline constexpr IID IID_ZFXBaseUnknown{0x5A465800U, 0, 0, {}};
/// Passed where members of any kind are wanted.
inline constexpr IID CLSID_ZFXBaseUnknown = IID_ZFXBaseUnknown;

/// What an object is recognised by; null for null. In a loop, settle that of the fixed side before it.
inline const ZFXBaseUnknown* ZFXIdentityOf(const ZFXBaseUnknown* face) {
    return face == nullptr ? nullptr : face->GetImpl();
}

/// Whether both designate the same object; two nulls do.
inline bool ZFXSameObject(const ZFXBaseUnknown* a, const ZFXBaseUnknown* b) {
    return a == b || (a != nullptr && b != nullptr && a->GetImpl() == b->GetImpl());
}

/// The class of nothing: the base of a class that derives from none.
class ZFX_PLATFORM_EXPORT ZFXnull {
public:
    /// The meta class. [borrowed]
    static ZFXMetaClass* MetaObject();
};
