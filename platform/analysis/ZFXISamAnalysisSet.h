#pragma once

#include "analysis/ZFXISpecObject.h"
#include "object-model/ZFXInterfaces.h"

/// An analysis set: a container of member features of one kind.
class ZFX_PLATFORM_EXPORT ZFXISamAnalysisSet : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamAnalysisSet)

    /// The `flag` of every call of ListMembers. No other value is passed.
    static constexpr int kMemberFlag = 0;

    /// The member features, in order; CLSID_ZFXBaseUnknown takes them all, `flag` is kMemberFlag. [appends]
    virtual HRESULT ListMembers(ZFXListValZFXISpecObject_var& members, const IID& filter, int flag) = 0;
};

using ZFXISamAnalysisSet_var = ZFXHandle<ZFXISamAnalysisSet>;
