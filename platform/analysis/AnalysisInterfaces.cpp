#include "analysis/AnalysisInterfaces.h"

#include "object-model/ZFXMetaClass.h"

// Defines the destructor and the meta class of each interface. A destructor defined here keeps the interface's type
// information in this library only.
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
