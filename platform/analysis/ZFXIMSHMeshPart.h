#pragma once

#include "object-model/ZFXInterfaces.h"

/// Marks a mesh part.
class ZFX_PLATFORM_EXPORT ZFXIMSHMeshPart : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXIMSHMeshPart)
};

using ZFXIMSHMeshPart_var = ZFXHandle<ZFXIMSHMeshPart>;
