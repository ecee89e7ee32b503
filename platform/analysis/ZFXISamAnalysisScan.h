#pragma once

#include "object-model/ZFXInterfaces.h"
#include "text/ZFXUnicodeString.h"

/// A node of the document that can be searched: the model, a case, a simulation history, a step or a set.
class ZFX_PLATFORM_EXPORT ZFXISamAnalysisScan : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamAnalysisScan)

    /// The `mode` of every request. The naming module passes no other value.
    static constexpr int kScanMode = 3;

    /// Appends all objects of a late type below this node, at any depth, in document order. [appends]
    ///
    /// Succeeds if there are none. On failure, the naming module treats the search for a simulation history or for the
    /// sets of a step as failed; for the property set and for job containers it uses the objects that are in the list.
    /// @param lateType  compared case-sensitively
    /// @param found     receives the objects
    /// @param mode      always kScanMode
    virtual HRESULT FindObjectsOfType(const ZFXUnicodeString& lateType, ZFXListValZFXBaseUnknown_var& found,
                                      int mode) = 0;
    /// Appends the children of this node, in document order. [appends]
    ///
    /// On failure, operations on steps fail. For the siblings of a bolt tightening, the naming module uses the objects
    /// that are in the list.
    /// @param children  receives the objects
    /// @param mode      always kScanMode
    virtual HRESULT ListChildren(ZFXListValZFXBaseUnknown_var& children, int mode) = 0;
};

using ZFXISamAnalysisScan_var = ZFXHandle<ZFXISamAnalysisScan>;
