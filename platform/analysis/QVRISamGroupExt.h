#pragma once

#include "object-model/ZFXInterfaces.h"

/// Marks a group. Its alias is the group name.
class ZFX_PLATFORM_EXPORT QVRISamGroupExt : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(QVRISamGroupExt)
};

using QVRISamGroupExt_var = ZFXHandle<QVRISamGroupExt>;
