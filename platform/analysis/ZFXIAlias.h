#pragma once

#include "object-model/ZFXInterfaces.h"
#include "text/ZFXUnicodeString.h"

/// The display name of an object. A feature that offers it has a name; one that does not has none.
class ZFX_PLATFORM_EXPORT ZFXIAlias : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXIAlias)

    /// Changes the display name. An implementation may refuse without a word: read the name again to know.
    virtual void SetAlias(const ZFXUnicodeString& alias) = 0;
    /// The display name; empty when it was never set.
    virtual ZFXUnicodeString GetAlias() = 0;
};

using ZFXIAlias_var = ZFXHandle<ZFXIAlias>;
