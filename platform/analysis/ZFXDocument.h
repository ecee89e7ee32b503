#pragma once

#include "object-model/ZFXBaseUnknown.h"

/// An analysis document. The platform's utilities know what it holds.
class ZFX_PLATFORM_EXPORT ZFXDocument : public ZFXBaseUnknown {
public:
    ~ZFXDocument() override;
};
