#pragma once

#include "object-model/ZFXInterfaces.h"

/// The explicit data of an object. A host implements it.
class ZFX_PLATFORM_EXPORT ZFXExplicitData : public ZFXBaseUnknown {
public:
    ~ZFXExplicitData() override;
    /// Sets `tag` to the integer tag of the object. On failure `tag` is unchanged.
    virtual HRESULT ReadTag(int& tag) = 0;
};

/// A view of the explicit data of an object. It is empty until `ZFXISamExplicit::GetExplicitChild` fills it, and owns
/// one reference on the data.
class ZFX_PLATFORM_EXPORT ZFXAnalysisExplicitChild {
public:
    /// Sets `tag` to the integer tag of the object. On failure `tag` is unchanged.
    /// - E_FAIL: the view is empty.
    /// - the code of ZFXExplicitData::ReadTag, if that fails
    HRESULT GetTag(int& tag) const;
    /// Makes this a view of `data` and takes a reference on it. Null empties the view.
    void View(ZFXExplicitData* data);

private:
    ZFXHandle<ZFXExplicitData> m_data;
};
