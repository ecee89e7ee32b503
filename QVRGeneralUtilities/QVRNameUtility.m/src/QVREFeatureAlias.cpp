#include "QVREFeatureAlias.h"

#include "LateTypes.h"

ZFXMetaClass* QVREFeatureAlias::meta_object = nullptr;

QVREFeatureAlias::QVREFeatureAlias() = default;
QVREFeatureAlias::~QVREFeatureAlias() = default;

void QVREFeatureAlias::SetAlias(const ZFXUnicodeString& alias) noexcept { QVRBaseFeatureAlias::SetAlias(alias); }
ZFXUnicodeString QVREFeatureAlias::GetAlias() noexcept { return QVRBaseFeatureAlias::GetAlias(); }

ZFXMetaClass* QVREFeatureAlias::MetaObject() noexcept {
    if (meta_object != nullptr)
        return meta_object;
    constexpr int kLevel = 32; // the level and the name of the framework are only for the records of a host
    meta_object = fct_RetrieveMetaObject("QVREFeatureAlias", ENUMTypeOfClass::DataExtension, ZFXnull::MetaObject(),
                                         LateTypes::QVRARSurfLT, "QVRGeneralUtilities", kLevel);
    for (const LateTypes::Row& row : LateTypes::kRows)
        if (row.alias == LateTypes::Alias::Guarded)
            meta_object->SetExtensionOf(fct_FindMetaObject(row.lateType));
    return meta_object;
}

ZFXMetaClass* QVREFeatureAlias::GetMetaObject() const noexcept { return MetaObject(); }
const GUID& QVREFeatureAlias::ClassId() noexcept { return MetaObject()->GetClassId(); }
const char* QVREFeatureAlias::ClassName() noexcept { return MetaObject()->IsA(); }
const char* QVREFeatureAlias::IsA() const noexcept { return MetaObject()->IsA(); }
int QVREFeatureAlias::IsAKindOf(const char* name) const noexcept { return MetaObject()->IsAKindOf(name); }
ZFXBaseUnknown* QVREFeatureAlias::CreateItself() noexcept { return new QVREFeatureAlias; }
