#pragma once

#include "object-model/ZFXInterfaces.h"
#include "text/ZFXUnicodeString.h"

/// Reads and writes the display name (alias) of an object. An object without this interface has no name.
class ZFX_PLATFORM_EXPORT ZFXIAlias : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXIAlias)

    /// Changes the display name. An implementation may reject the name without reporting it to the caller; GetAlias
    /// then returns the former name.
    virtual void SetAlias(const ZFXUnicodeString& alias) = 0;
    /// Returns the display name, or an empty string if it was never set.
    virtual ZFXUnicodeString GetAlias() = 0;
};

using ZFXIAlias_var = ZFXHandle<ZFXIAlias>;
