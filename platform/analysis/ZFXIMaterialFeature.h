#pragma once

#include "object-model/ZFXInterfaces.h"
#include "text/ZFXUnicodeString.h"

/// A feature that names a material.
class ZFX_PLATFORM_EXPORT ZFXIMaterialFeature : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXIMaterialFeature)

    /// Returns the name of the material, which may differ from the alias.
    virtual ZFXUnicodeString GetMaterialFeatureName() = 0;
};

using ZFXIMaterialFeature_var = ZFXHandle<ZFXIMaterialFeature>;
