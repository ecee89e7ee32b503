#pragma once

#include "QVRNameUtilityExport.h"

#include "analysis/ZFXIMSHMeshPart.h"
#include "base/ZFXResult.h"
#include "text/ZFXUnicodeString.h"

/// What a mesh part is called in the solver deck. The part's integer tag alone makes its names distinct.
/// Used by one thread at a time.
class QVR_NAME_UTILITY_EXPORT QVRGenInstanceName {
public:
    /// Copies nothing: there is nothing to copy.
    QVRGenInstanceName& operator=(const QVRGenInstanceName&);

    /// "Instance" and "Part", each with the tag, "-" and the cleaned display name behind it, cut to 72 units:
    /// "Instance3-Bracket-1". Of a name with colons the text after the last one counts, without its first
    /// character; double quotes go, blanks and underscores at the ends go, full stops become hyphens,
    /// backslashes become solidi. A display name with a unit above U+00FF (whose test registers
    /// "DoubleByteCharErr_01") is replaced by the generic English name; one that begins with "OrphanMesh-"
    /// gives both names as the rest of it, unchanged. E_FAIL for an empty handle, no explicit data, or no
    /// name; the code of a failed tag; the code of QVRGenI18NUtils::GetGenericEnglishName when that refuses.
    static HRESULT GetUniqueLegalInstanceName(const ZFXIMSHMeshPart_var& meshPart, ZFXUnicodeString& instanceName,
                                              ZFXUnicodeString& partName) noexcept;
    /// The number between the first "INSTANCE" of a name and the next "-" (the end when there is none). The
    /// tag keeps what the caller passed when that is no int. E_FAIL, and -1, for a name without "INSTANCE".
    static HRESULT GetUniqueLegalInstanceTag(int& tag, const ZFXUnicodeString& name) noexcept;
};
