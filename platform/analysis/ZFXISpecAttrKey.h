#pragma once

#include "object-model/ZFXInterfaces.h"

/// Identifies one attribute of a feature. Only the feature that returned the key interprets it. A host with one
/// attribute can return `new ZFXISpecAttrKey` for each request; one with several derives a class from it.
class ZFX_PLATFORM_EXPORT ZFXISpecAttrKey : public ZFXBaseUnknown {
public:
    ~ZFXISpecAttrKey() override;
};

using ZFXISpecAttrKey_var = ZFXHandle<ZFXISpecAttrKey>;
