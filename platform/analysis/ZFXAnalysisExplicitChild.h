#pragma once

#include "object-model/ZFXInterfaces.h"

/// What an explicit child reads its tag from.
class ZFX_PLATFORM_EXPORT ZFXExplicitData : public ZFXBaseUnknown {
public:
    ~ZFXExplicitData() override;
    /// Writes the tag on success only.
    virtual HRESULT ReadTag(int& tag) = 0;
};

/// A view of an object's explicit data: empty when built, filled in by `ZFXISamExplicit::GetExplicitChild`.
/// It keeps a reference on the data.
class ZFX_PLATFORM_EXPORT ZFXAnalysisExplicitChild {
public:
    /// The integer tag of the object. An empty child answers E_FAIL and leaves the tag.
    HRESULT GetTag(int& tag) const;
    /// Makes this a view of `data`; takes a reference. Null empties it.
    void View(ZFXExplicitData* data);

private:
    ZFXHandle<ZFXExplicitData> m_data;
};
