#pragma once

#include "object-model/ZFXInterfaces.h"

/// Marks the mesh manager of a document. It also offers ZFXISamAnalysisSet; its members are the mesh parts.
class ZFX_PLATFORM_EXPORT ZFXIMSHMeshManager : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXIMSHMeshManager)
};

using ZFXIMSHMeshManager_var = ZFXHandle<ZFXIMSHMeshManager>;
