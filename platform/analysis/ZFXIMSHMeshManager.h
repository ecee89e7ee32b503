#pragma once

#include "object-model/ZFXInterfaces.h"

/// The mesh manager of a document: the same object is an analysis set whose members are the mesh parts.
class ZFX_PLATFORM_EXPORT ZFXIMSHMeshManager : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXIMSHMeshManager)
};

using ZFXIMSHMeshManager_var = ZFXHandle<ZFXIMSHMeshManager>;
