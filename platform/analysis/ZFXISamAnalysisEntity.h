#pragma once

#include "object-model/ZFXInterfaces.h"

/// A feature that is a member of analysis sets.
class ZFX_PLATFORM_EXPORT ZFXISamAnalysisEntity : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamAnalysisEntity)

    /// Sets `sets` to a list of the analysis sets that contain the feature. [new list]
    ///
    /// The naming module uses the first set only. A success with a null list is allowed: the feature is then in no set.
    /// @param sets  null on entry. On failure it may be null or a list; the caller deletes a list in both cases.
    virtual HRESULT GetParentSets(ZFXListValZFXBaseUnknown_var*& sets) = 0;
};

using ZFXISamAnalysisEntity_var = ZFXHandle<ZFXISamAnalysisEntity>;
