#pragma once

#include "QVRBaseFeatureAlias.h"

#include "object-model/ZFXMetaClass.h"

/// Offers ZFXIAlias on the features of 29 late types. An interface cast of such a feature to ZFXIAlias creates an
/// adaptor that forwards to an object of this class. The adaptor owns this object.
///
/// The late types and the adaptor are declared to the object model when the module is loaded. In docs/types.md these
/// late types are marked as guarded.
class QVR_NAME_UTILITY_EXPORT QVREFeatureAlias : public QVRBaseFeatureAlias {
public:
    /// Creates an object that extends no feature.
    QVREFeatureAlias();
    ~QVREFeatureAlias() override;

    /// Calls QVRBaseFeatureAlias::SetAlias.
    void SetAlias(const ZFXUnicodeString& alias) noexcept;
    /// Calls QVRBaseFeatureAlias::GetAlias.
    ZFXUnicodeString GetAlias() noexcept;

    /// Returns the meta class. The first call creates it and declares it an extension of the late types. It exists
    /// until the process ends. [borrowed]
    static ZFXMetaClass* MetaObject() noexcept;
    ZFXMetaClass* GetMetaObject() const noexcept override;
    /// Returns the identifier of the meta class. It is derived from the name, so it is equal in all processes.
    static const GUID& ClassId() noexcept;
    /// Returns "QVREFeatureAlias". The text is valid until the process ends. [borrowed]
    static const char* ClassName() noexcept;
    const char* IsA() const noexcept override;
    int IsAKindOf(const char* name) const noexcept override;
    /// Returns a new object that extends no feature, or null if no memory is available. [new reference]
    static ZFXBaseUnknown* CreateItself() noexcept;

    /// The result of MetaObject. Null before its first call. [borrowed]
    static ZFXMetaClass* meta_object;
};

/// Returns a new adaptor that offers ZFXIAlias on `object`, or null if `object` is null or no memory is available. The
/// adaptor owns a reference to `object`. `context` is passed to Tie_Construct. [new reference]
extern "C" QVR_NAME_UTILITY_EXPORT ZFXBaseUnknown* CreateTIEZFXIAliasQVREFeatureAlias(ZFXBaseUnknown* object,
                                                                                      void* context);
