#pragma once

#include "object-model/ZFXInterfaces.h"

/// Names one attribute of a feature. It has no operations; its feature reads it.
class ZFX_PLATFORM_EXPORT ZFXISpecAttrKey : public ZFXBaseUnknown {
public:
    ~ZFXISpecAttrKey() override;
};

using ZFXISpecAttrKey_var = ZFXHandle<ZFXISpecAttrKey>;
