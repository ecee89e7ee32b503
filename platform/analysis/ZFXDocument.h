#pragma once

#include "object-model/ZFXBaseUnknown.h"

/// Identifies an analysis document. AnalysisServices finds its contents.
class ZFX_PLATFORM_EXPORT ZFXDocument : public ZFXBaseUnknown {
public:
    ~ZFXDocument() override;
};
