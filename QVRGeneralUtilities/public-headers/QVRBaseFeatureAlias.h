#pragma once

#include "QVRNameFinding.h"
#include "QVRNameUtilityExport.h"

#include "object-model/ZFXBaseUnknown.h"
#include "text/ZFXUnicodeString.h"

/// Stores the name (alias) of a feature in its string attribute "Alias", and rejects names that break the name rules.
/// An object of this class extends one feature: interface casts of the object lead to the interfaces of the feature. It
/// has no state, so two objects for one feature are interchangeable. One thread at a time uses it.
class QVR_NAME_UTILITY_EXPORT QVRBaseFeatureAlias : public ZFXBaseUnknown {
public:
    QVRBaseFeatureAlias(); ///< Creates an object that extends no feature. ZFXBaseUnknown::SetImpl sets the feature.
    ~QVRBaseFeatureAlias() override;

    /// Returns the stored alias, or an empty string if it was never set or cannot be read.
    ZFXUnicodeString GetAlias() noexcept;
    /// Changes the alias if the new one passes the name rules.
    ///
    /// Removes spaces and then underscores at both ends of `alias`, stores the result and checks it. During the check
    /// the feature has the new alias. Then stores the former alias again if the check failed, the new one otherwise.
    /// The check depends on the late type:
    /// - "QVRJobLT": QVRNameUtil::IsNameUniqueAcrossCases. CheckName runs before it; its result is ignored, but it may
    ///   register an error.
    /// - "QVRShellSectionEnhLT": QVRNameUtil::CheckName with `checkStartAndEnd` 0.
    /// - Every other late type: QVRNameUtil::CheckName with `checkStartAndEnd` 1.
    ///
    /// If the check fails with a registered error, writes "NAME ERROR: " and its message as one line on standard
    /// output. Any other failure writes nothing: read the alias again to detect it.
    ///
    /// No failed request to the host is repeated. Stores nothing if the feature does not offer ZFXISpecAttrAccess or
    /// has no attribute "Alias"; the check still runs. If the object extends no feature with ZFXISpecObject, stores the
    /// former alias again without a check.
    void SetAlias(const ZFXUnicodeString& alias) noexcept;

    /// Checks what SetAlias would do with a text, without changing the feature. Stores and prints nothing.
    ///
    /// Returns the code of the check that SetAlias would make for `alias`, and registers the same errors.
    /// - E_FAIL: the handle is empty. `finding` is unchanged.
    /// @param feature  the feature that SetAlias would change
    /// @param alias    the text that SetAlias would receive
    /// @param finding  if not null and the check fails, receives the rule and, for a clash, the other feature
    static HRESULT CheckAlias(const ZFXISpecObject_var& feature, const ZFXUnicodeString& alias,
                              QVRNameFinding* finding = nullptr) noexcept;

    /// Returns `alias` as SetAlias stores it: without spaces and then without underscores at both ends.
    static ZFXUnicodeString Trimmed(const ZFXUnicodeString& alias) noexcept;

private:
    /// Stores `value` without a check.
    void SetAttribute(const ZFXUnicodeString& value) noexcept;
};
