#include "analysis/AnalysisInterfaces.h"

#include "object-model/ZFXMetaClass.h"

// Each interface's destructor and meta class, here once: so its type stands in this library and in no other.
#define ZFX_INTERFACE(name)                                                                                            \
    name::~name() = default;                                                                                           \
    ZFXMetaClass* name::MetaObject() {                                                                                 \
        static ZFXMetaClass metaObject(&IID_##name, #name, nullptr, nullptr,                                           \
                                       static_cast<int>(ENUMTypeOfClass::Interface));                                  \
        return &metaObject;                                                                                            \
    }
#include "object-model/ZFXInterfaces.def"
#undef ZFX_INTERFACE

ZFXISpecAttrKey::~ZFXISpecAttrKey() = default;
ZFXDocument::~ZFXDocument() = default;
ZFXExplicitData::~ZFXExplicitData() = default;

HRESULT ZFXAnalysisExplicitChild::GetTag(int& tag) const { return m_data == nullptr ? E_FAIL : m_data->ReadTag(tag); }

void ZFXAnalysisExplicitChild::View(ZFXExplicitData* data) { m_data = data; }
