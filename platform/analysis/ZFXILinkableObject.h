#pragma once

#include "analysis/ZFXDocument.h"
#include "object-model/ZFXInterfaces.h"

/// An object that belongs to a document.
class ZFX_PLATFORM_EXPORT ZFXILinkableObject : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXILinkableObject)

    /// Returns the document that contains the object, or null. [borrowed]
    virtual ZFXDocument* GetOwningDocument() = 0;
};

using ZFXILinkableObject_var = ZFXHandle<ZFXILinkableObject>;
