#pragma once

#include "analysis/ZFXISpecAttrKey.h"
#include "object-model/ZFXInterfaces.h"
#include "text/ZFXUnicodeString.h"

/// Reads and writes the string attributes of a feature. The attribute "Alias" stores the alias that the naming module
/// guards.
class ZFX_PLATFORM_EXPORT ZFXISpecAttrAccess : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISpecAttrAccess)

    /// Returns the key of an attribute, or null if the feature has no attribute of this name. [new reference]
    virtual ZFXISpecAttrKey* GetAttrKey(const char* name) = 0;
    /// Stores a string as the value of an attribute.
    /// @param key    a key that this feature returned
    /// @param value  the string; may be empty
    /// @param index  always 0
    virtual void SetString(ZFXISpecAttrKey* key, const ZFXUnicodeString& value, int index) = 0;
    /// Returns the value of an attribute exactly as it was stored, or an empty string if it was never stored.
    /// @param key    a key that this feature returned
    /// @param index  always 0
    virtual ZFXUnicodeString GetString(ZFXISpecAttrKey* key, int index) = 0;
};

using ZFXISpecAttrAccess_var = ZFXHandle<ZFXISpecAttrAccess>;
