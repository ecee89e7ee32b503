#pragma once

#include "analysis/ZFXISpecObject.h"
#include "object-model/ZFXInterfaces.h"

/// An analysis set: a container of features of one kind, such as the loads of a step. Its late type identifies the
/// kind. A host chooses it, except for a job container and the property set, and uses it for the sets of all steps.
class ZFX_PLATFORM_EXPORT ZFXISamAnalysisSet : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamAnalysisSet)

    /// The `flag` of every request. The naming module passes no other value.
    static constexpr int kMemberFlag = 0;

    /// Appends the member features, in document order. [appends]
    ///
    /// On failure, the operation of the naming module fails. For the objects of a step, it uses the features that are
    /// in the list.
    /// @param members  receives the features
    /// @param filter   always CLSID_ZFXBaseUnknown: all members, without a filter
    /// @param flag     always kMemberFlag
    virtual HRESULT ListMembers(ZFXListValZFXISpecObject_var& members, const IID& filter, int flag) = 0;
};

using ZFXISamAnalysisSet_var = ZFXHandle<ZFXISamAnalysisSet>;
