#pragma once

#include "analysis/ZFXISpecAttribute.h"
#include "object-model/ZFXInterfaces.h"
#include "text/ZFXUnicodeString.h"

/// A feature: any named node of the analysis document, such as a case, a step, a load, a material or a mesh part. It
/// has a late type (the name of its type) and a father (the object that contains it).
class ZFX_PLATFORM_EXPORT ZFXISpecObject : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISpecObject)

    /// Returns the late type, such as "QVRStaticLPStepLT". It is constant for the lifetime of the object: callers may
    /// request it once and keep it.
    virtual ZFXUnicodeString GetLateType() = 0;
    /// Returns the father, or null if there is none. [new reference]
    ///
    /// The father of a set of jobs must be the analysis model, although a search finds the set below its case: the
    /// check of a job's name across cases starts at that father.
    virtual ZFXBaseUnknown* GetFather() = 0;
    /// Returns a list of the attributes of other features that point at this one, or null. [read only]
    ///
    /// The list belongs to this object and is valid until the next call. The attributes of a simulation history point
    /// at each of its steps. An entry of the list keeps a reference to its attribute, so a host that destroys the
    /// attribute or its history before the step empties the list first.
    /// @param interfaceName  always "ZFXISpecObject"
    /// @param type           always empty
    /// @param name           always empty
    virtual ZFXListValZFXISpecAttribute_var*
    ListPointingAttributes(const char* interfaceName, const ZFXUnicodeString& type, const ZFXUnicodeString& name) = 0;
};

using ZFXISpecObject_var = ZFXHandle<ZFXISpecObject>;
using ZFXListValZFXISpecObject_var = ZFXListVal<ZFXISpecObject_var>;
