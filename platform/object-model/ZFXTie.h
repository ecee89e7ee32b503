#pragma once

#include "base/ZFXPlatformExport.h"
#include "object-model/ZFXBaseUnknown.h"
#include "object-model/ZFXMetaClass.h"

/// The data of an adaptor: the object that it belongs to, the implementation that it forwards calls to, and its
/// reference count. The adaptor keeps both alive.
///
/// An adaptor class contains a ZFXTie and implements its root operations with the functions below. Tie_Construct must
/// have initialized the ZFXTie that is passed to the other functions.
struct ZFXTie {
    /// The implementation, with one reference. Null if it could not be created.
    ZFXBaseUnknown* implementation = nullptr;
    /// The object that the adaptor was created for, with one reference.
    ZFXBaseUnknown* object = nullptr;
    /// The number of references to the adaptor.
    ULONG count = 0;
};

/// Creates an implementation object with one reference. Returns null if there is no memory.
using ZFXImplementationMaker = ZFXBaseUnknown* (*)();

/// Initializes an adaptor: creates its implementation, connects both with `object`, and sets the adaptor's reference
/// count to 1. Adds one reference to `object`. If the implementation cannot be created, `tie.implementation` is null.
/// Returns the implementation that the module's next adaptor can share: always null, because each adaptor of this
/// platform has its own implementation.
/// @param adaptor       the adaptor; not null
/// @param tie           the data of the adaptor
/// @param maker         creates the implementation; not null
/// @param object        the object that the adaptor extends; not null
/// @param adaptorClass, extension, kind, previous, context  for a host's own records; ignored
ZFX_PLATFORM_EXPORT ZFXBaseUnknown* Tie_Construct(ZFXBaseUnknown* adaptor, ZFXTie& tie, ZFXMetaClass* adaptorClass,
                                                  const CLSID& extension, ENUMTypeOfClass kind,
                                                  ZFXBaseUnknown* previous, ZFXImplementationMaker maker,
                                                  ZFXBaseUnknown* object, void* context);
/// Releases the implementation and the object. The destructor of the adaptor calls it. Does nothing if Tie_Construct
/// was not called.
ZFX_PLATFORM_EXPORT void Tie_Destruct(ZFXBaseUnknown* adaptor, ZFXTie& tie);
/// Casts to an interface: returns the adaptor if `iid` is its own interface, else the result of the object's
/// QueryInterface. Returns E_POINTER if `interfacePointer` is null.
[[nodiscard]] ZFX_PLATFORM_EXPORT HRESULT Tie_Query(ZFXBaseUnknown* adaptor, const ZFXTie& tie,
                                                    const ZFXMetaClass* adaptorClass, const IID& iid,
                                                    void** interfacePointer);
/// Adds one reference to the adaptor. Returns the new number of references.
ZFX_PLATFORM_EXPORT ULONG Tie_AddRef(ZFXTie& tie);
/// Removes one reference and destroys the adaptor if it was the last. Returns the number of references left.
ZFX_PLATFORM_EXPORT ULONG Tie_Release(ZFXBaseUnknown* adaptor, ZFXTie& tie);
/// Forwards the automation call of this name to the implementation.
/// @{
ZFX_PLATFORM_EXPORT HRESULT Tie_GetTypeInfoCount(const ZFXTie& tie, unsigned int* count);
ZFX_PLATFORM_EXPORT HRESULT Tie_GetTypeInfo(const ZFXTie& tie, unsigned int index, unsigned long locale, void** info);
ZFX_PLATFORM_EXPORT HRESULT Tie_GetIDsOfNames(const ZFXTie& tie, const IID& iid, char16_t** names, unsigned int count,
                                              unsigned long locale, long* ids);
ZFX_PLATFORM_EXPORT HRESULT Tie_Invoke(const ZFXTie& tie, long id, const IID& iid, unsigned long locale,
                                       unsigned short flags, void* params, void* result, void* exception,
                                       unsigned int* argument);
/// @}

/// The context of a call through an adaptor.
class ZFX_PLATFORM_EXPORT Tie_StackCtx {
public:
    /// Returns the implementation that a call through the adaptor is forwarded to. [borrowed]
    [[nodiscard]] static ZFXBaseUnknown* Run(const ZFXTie& tie) noexcept;
};
