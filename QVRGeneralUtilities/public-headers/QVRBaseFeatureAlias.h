#pragma once

#include "QVRNameUtilityExport.h"

#include "object-model/ZFXBaseUnknown.h"
#include "text/ZFXUnicodeString.h"

/// Stores the name (alias) of a feature in its string attribute "Alias" and rejects names that break the name rules.
///
/// An object of this class extends one feature. Its interface casts lead to the interfaces of this feature. It has no
/// state: two objects for one feature are interchangeable. One thread at a time uses it.
class QVR_NAME_UTILITY_EXPORT QVRBaseFeatureAlias : public ZFXBaseUnknown {
public:
    /// Creates an object that extends no feature. ZFXBaseUnknown::SetImpl sets the feature.
    QVRBaseFeatureAlias();
    ~QVRBaseFeatureAlias() override;

    /// Returns the stored alias, or an empty string if it was never set or cannot be read.
    ZFXUnicodeString GetAlias() noexcept;
    /// Changes the alias if the new one passes the name rules.
    ///
    /// Removes spaces and then underscores at both ends of `alias`, stores the result and checks it. If the check
    /// fails, stores the former alias again; if it passes, stores the new one again. During the check the feature has
    /// the new alias. A failed request to the host is not repeated: the other steps determine the result. The check
    /// depends on the late type:
    /// - "QVRJobLT": QVRNameUtil::IsNameUniqueAcrossCases. CheckName runs before it and may register an error; its
    ///   result is ignored.
    /// - "QVRShellSectionEnhLT": QVRNameUtil::CheckName without the check of the first unit.
    /// - Every other late type: QVRNameUtil::CheckName.
    ///
    /// If the check fails with a registered error, writes "NAME ERROR: " and its message as one line on standard
    /// output. Any other failure writes nothing. Read the alias again to detect a failure.
    ///
    /// Stores nothing if the feature does not offer ZFXISpecAttrAccess or has no attribute "Alias"; the check still
    /// runs. Checks nothing if the object extends no feature with ZFXISpecObject; the former alias is stored again.
    void SetAlias(const ZFXUnicodeString& alias) noexcept;

private:
    /// Stores `value` without a check.
    void SetAttribute(const ZFXUnicodeString& value) noexcept;
};
