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

    /// Returns the stored alias, or an empty string if it was never set or cannot be read.
    ZFXUnicodeString GetAlias() noexcept;
    /// Changes the alias if the new one passes the name rules.
    ///
    /// Reads the former alias, removes spaces and then underscores at both ends of `alias`, stores the result and
    /// checks it. Stores it again if the check passes, otherwise stores the former alias. No request is repeated: a
    /// host whose request fails gets the result of the remaining steps. The check is
    /// - QVRNameUtil::IsNameUniqueAcrossCases for the late type "QVRJobLT";
    /// - QVRNameUtil::CheckName without the test of the first character for "QVRShellSectionEnhLT";
    /// - QVRNameUtil::CheckName for every other late type.
    ///
    /// If the check registers an error, writes "NAME ERROR: " and its message as one line on standard output. A failure
    /// without an error is silent; read the alias again to detect it. Stores nothing if the feature does not offer
    /// ZFXISpecAttrAccess or has no attribute "Alias". Checks nothing if the object does not offer ZFXISpecObject.
    void SetAlias(const ZFXUnicodeString& alias) noexcept;

private:
    /// Stores `value` without a check.
    void SetAttribute(const ZFXUnicodeString& value) noexcept;
};
