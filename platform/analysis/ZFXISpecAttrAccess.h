#pragma once

#include "analysis/ZFXISpecAttrKey.h"
#include "object-model/ZFXInterfaces.h"
#include "text/ZFXUnicodeString.h"

/// A feature whose attributes can be read and written by key.
class ZFX_PLATFORM_EXPORT ZFXISpecAttrAccess : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISpecAttrAccess)

    /// The key of the attribute of this name, or null when the feature has none. [new reference]
    virtual ZFXISpecAttrKey* GetAttrKey(const char* name) = 0;
    /// Stores a string under a key of this feature; `index` is 0.
    virtual void SetString(ZFXISpecAttrKey* key, const ZFXUnicodeString& value, int index) = 0;
    /// The stored string; empty when it was never written. `index` is 0.
    virtual ZFXUnicodeString GetString(ZFXISpecAttrKey* key, int index) = 0;
};

using ZFXISpecAttrAccess_var = ZFXHandle<ZFXISpecAttrAccess>;
