#pragma once

#include "QVRNameUtilityExport.h"

#include "object-model/ZFXBaseUnknown.h"
#include "text/ZFXUnicodeString.h"

/// The alias of a feature, kept in its string attribute "Alias" and guarded: a new one is stored only when it
/// passes the name rules. An object of this class is an extension of one feature; the feature interfaces that
/// it is asked for are the feature's. It holds no state of its own. Used by one thread at a time.
class QVR_NAME_UTILITY_EXPORT QVRBaseFeatureAlias : public ZFXBaseUnknown {
public:
    QVRBaseFeatureAlias();
    ~QVRBaseFeatureAlias() override;

    /// The stored alias; empty when it was never set or cannot be read.
    ZFXUnicodeString GetAlias() noexcept;
    /// Trims blanks, then underscores, at both ends, stores the rest and checks it on the feature: by
    /// QVRNameUtil::CheckName (a leading digit is legal for "QVRShellSectionEnhLT"), whose answer for a job gives way
    /// to that of QVRNameUtil::IsNameUniqueAcrossCases. After a refusal the former alias, as it was read, is back; when
    /// the refusal registered an error, "NAME ERROR: " and its message are written as one line on standard output.
    /// Without ZFXISpecAttrAccess or an "Alias" attribute nothing is stored; without ZFXISpecObject nothing is checked
    /// or changed.
    void SetAlias(const ZFXUnicodeString& alias) noexcept;

private:
    /// Stores a value without any check.
    void SetAttribute(const ZFXUnicodeString& value) noexcept;
};
