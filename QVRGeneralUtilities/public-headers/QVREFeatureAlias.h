#pragma once

#include "QVRBaseFeatureAlias.h"

#include "object-model/ZFXMetaClass.h"

/// What the object model knows as the alias extension of 29 late types: asked for ZFXIAlias, a feature of one
/// of them gives an adaptor that forwards to an object of this class. The declarations and the dictionary
/// entry are made when the module is loaded.
class QVR_NAME_UTILITY_EXPORT QVREFeatureAlias : public QVRBaseFeatureAlias {
public:
    QVREFeatureAlias();
    ~QVREFeatureAlias() override;

    /// As QVRBaseFeatureAlias::SetAlias.
    void SetAlias(const ZFXUnicodeString& alias) noexcept;
    /// As QVRBaseFeatureAlias::GetAlias.
    ZFXUnicodeString GetAlias() noexcept;

    /// The meta class, made and declared an extension of the late types by the first call. [borrowed]
    static ZFXMetaClass* MetaObject() noexcept;
    ZFXMetaClass* GetMetaObject() const noexcept override;
    /// The identifier of the meta class, made out of the name: the same in every process.
    static const GUID& ClassId() noexcept;
    /// "QVREFeatureAlias", for as long as the process runs. [borrowed]
    static const char* ClassName() noexcept;
    const char* IsA() const noexcept override;
    int IsAKindOf(const char* name) const noexcept override;
    /// A new object, or null when there is no memory. [new reference]
    static ZFXBaseUnknown* CreateItself() noexcept;

    /// What MetaObject gives, null before its first call. [borrowed]
    static ZFXMetaClass* meta_object;
};

/// Makes the adaptor that offers ZFXIAlias on `object`; null without an object or without memory. `context` is handed
/// on. [new reference]
extern "C" QVR_NAME_UTILITY_EXPORT ZFXBaseUnknown* CreateTIEZFXIAliasQVREFeatureAlias(ZFXBaseUnknown* object,
                                                                                      void* context);
