#pragma once

#include "analysis/ZFXISpecAttribute.h"
#include "object-model/ZFXInterfaces.h"
#include "text/ZFXUnicodeString.h"

/// A feature: a node of the analysis document, with a late type that tells its kind and a father that
/// contains it.
class ZFX_PLATFORM_EXPORT ZFXISpecObject : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISpecObject)

    /// Returns the name of the feature's type, such as "QVRStaticLPStepLT". It is constant for the lifetime of the
    /// object: callers may request it once and keep it.
    virtual ZFXUnicodeString GetLateType() = 0;
    /// The containing object, or null. [new reference]
    virtual ZFXBaseUnknown* GetFather() = 0;
    /// The attributes of other features that point at this one, or null. The arguments narrow the search;
    /// pass "ZFXISpecObject" and two empty strings for all of them. [read only] Valid until the next call.
    virtual ZFXListValZFXISpecAttribute_var*
    ListPointingAttributes(const char* interfaceName, const ZFXUnicodeString& type, const ZFXUnicodeString& name) = 0;
};

using ZFXISpecObject_var = ZFXHandle<ZFXISpecObject>;
using ZFXListValZFXISpecObject_var = ZFXListVal<ZFXISpecObject_var>;
