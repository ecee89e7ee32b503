#pragma once

#include "object-model/ZFXBaseUnknown.h"

/// Identifies an analysis document. AnalysisServices finds its contents. A host creates one object of this class, or of
/// a class derived from it, for each document. It is no interface, so ZFXImplements does not accept it.
class ZFX_PLATFORM_EXPORT ZFXDocument : public ZFXBaseUnknown {
public:
    ~ZFXDocument() override;
};
