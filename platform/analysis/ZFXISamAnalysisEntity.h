#pragma once

#include "object-model/ZFXInterfaces.h"

/// A feature that lives in analysis sets.
class ZFX_PLATFORM_EXPORT ZFXISamAnalysisEntity : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamAnalysisEntity)

    /// The sets that hold the entity, the one that counts first. The pointer may stay null although the
    /// request succeeds. [new list]
    virtual HRESULT GetParentSets(ZFXListValZFXBaseUnknown_var*& sets) = 0;
};

using ZFXISamAnalysisEntity_var = ZFXHandle<ZFXISamAnalysisEntity>;
