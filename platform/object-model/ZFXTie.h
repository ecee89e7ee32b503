#pragma once

#include "base/ZFXPlatformExport.h"
#include "object-model/ZFXBaseUnknown.h"
#include "object-model/ZFXMetaClass.h"

/// The bookkeeping that an adaptor holds: what it forwards to, and its count. An adaptor keeps the object
/// that it was made on alive, and its implementation dies with it.
struct ZFXTie {
    /// What calls are forwarded to, with one reference.
    ZFXBaseUnknown* implementation = nullptr;
    /// What the adaptor was made on, with one reference.
    ZFXBaseUnknown* object = nullptr;
    /// The references on the adaptor.
    ULONG count = 0;
};

/// Makes a new implementation object with one reference, or null when there is no memory.
using ZFXImplementationMaker = ZFXBaseUnknown* (*)();

/// Builds an adaptor: takes a reference on `object`, which is not null, makes the implementation and ties both
/// together; the adaptor has one reference afterwards. Returns the implementation that the module's next adaptor may
/// share: null, as each adaptor of this platform gets one of its own. When it cannot be made, `tie.implementation`
/// stays null. `previous` and `context` are for a host that keeps its own.
ZFX_PLATFORM_EXPORT ZFXBaseUnknown* Tie_Construct(ZFXBaseUnknown* adaptor, ZFXTie& tie, ZFXMetaClass* adaptorClass,
                                                  const CLSID& extension, ENUMTypeOfClass kind,
                                                  ZFXBaseUnknown* previous, ZFXImplementationMaker maker,
                                                  ZFXBaseUnknown* object, void* context);
/// Gives the implementation and the object back; called by the adaptor's destructor.
ZFX_PLATFORM_EXPORT void Tie_Destruct(ZFXBaseUnknown* adaptor, ZFXTie& tie);
/// The adaptor itself for the interface that it offers, else what the object answers.
ZFX_PLATFORM_EXPORT HRESULT Tie_Query(ZFXBaseUnknown* adaptor, const ZFXTie& tie, const ZFXMetaClass* adaptorClass,
                                      const IID& iid, void** face);
/// One reference more on the adaptor; their number.
ZFX_PLATFORM_EXPORT ULONG Tie_AddRef(ZFXTie& tie);
/// Destroys the adaptor when the last reference goes.
ZFX_PLATFORM_EXPORT ULONG Tie_Release(ZFXBaseUnknown* adaptor, ZFXTie& tie);
/// What the implementation answers.
ZFX_PLATFORM_EXPORT HRESULT Tie_GetTypeInfoCount(const ZFXTie& tie, unsigned int* count);
/// What the implementation answers.
ZFX_PLATFORM_EXPORT HRESULT Tie_GetTypeInfo(const ZFXTie& tie, unsigned int index, unsigned long locale, void** info);
/// What the implementation answers.
ZFX_PLATFORM_EXPORT HRESULT Tie_GetIDsOfNames(const ZFXTie& tie, const IID& iid, char16_t** names, unsigned int count,
                                              unsigned long locale, long* ids);
/// What the implementation answers.
ZFX_PLATFORM_EXPORT HRESULT Tie_Invoke(const ZFXTie& tie, long id, const IID& iid, unsigned long locale,
                                       unsigned short flags, void* params, void* result, void* exception,
                                       unsigned int* argument);

/// The context of a call through an adaptor.
class ZFX_PLATFORM_EXPORT Tie_StackCtx {
public:
    /// The implementation that the call is for. [borrowed]
    static ZFXBaseUnknown* Run(const ZFXTie& tie) noexcept;
};
