#pragma once

#include "object-model/ZFXInterfaces.h"
#include "text/ZFXUnicodeString.h"

/// A node of the document that can be searched: a case, the model, a simulation history, a step, a set.
class ZFX_PLATFORM_EXPORT ZFXISamAnalysisScan : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamAnalysisScan)

    /// The `mode` of every call of FindObjectsOfType and ListChildren. No other value is passed.
    static constexpr int kScanMode = 3;

    /// Every object of the late type under this node, in document order; `mode` is kScanMode. Finding none is a
    /// success. [appends]
    virtual HRESULT FindObjectsOfType(const ZFXUnicodeString& lateType, ZFXListValZFXBaseUnknown_var& found,
                                      int mode) = 0;
    /// The children of this node, in order; `mode` is kScanMode. [appends]
    virtual HRESULT ListChildren(ZFXListValZFXBaseUnknown_var& children, int mode) = 0;
};

using ZFXISamAnalysisScan_var = ZFXHandle<ZFXISamAnalysisScan>;
