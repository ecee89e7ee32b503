#pragma once

#include "QVRNameUtilityExport.h"

#include "analysis/ZFXIMSHMeshPart.h"
#include "base/ZFXResult.h"
#include "collections/ZFXListVal.h"
#include "object-model/ZFXHandle.h"
#include "text/ZFXUnicodeString.h"

/// The names of a mesh part in the solver deck.
struct QVRMeshPartNames {
    HRESULT code = S_OK;           ///< the result of GetUniqueLegalInstanceName; after a failure, both names are empty
    ZFXUnicodeString instanceName; ///< the name of the instance
    ZFXUnicodeString partName;     ///< the name of the part
};

/// Builds the names that a mesh part has in the solver deck. Only the integer tag of the part makes them unique: they
/// are not compared with other names. One thread at a time uses the class. No operation throws an exception.
class QVR_NAME_UTILITY_EXPORT QVRGenInstanceName {
public:
    QVRGenInstanceName& operator=(const QVRGenInstanceName&); ///< Does nothing: the class has no members.

    /// Sets `instanceName` and `partName` to "Instance" and "Part", each followed by the tag, "-" and the cleaned
    /// display name (alias) of the part, cut to 72 UTF-16 code units. "Root: Bracket.1" with the tag 3 gives
    /// "Instance3-Bracket-1". If the cleaned name is empty, its "-" is omitted. The steps of cleaning are:
    /// - If a unit is above U+00FF, the result of QVRGenI18NUtils::GetGenericEnglishName replaces the name. The check
    ///   registers "DoubleByteCharErr_01".
    /// - Otherwise, if there is a colon, only the text after the last colon is kept, unless this text is empty. Then,
    ///   unless the colon is the first unit of the name, the first unit of the result, mostly a space, is removed.
    /// - Double quotes, then leading underscores, leading spaces, trailing spaces and underscores are removed.
    /// - Full stops become hyphens, backslashes become slashes.
    ///
    /// If the display name begins with "OrphanMesh-", both names are the rest of it. On failure both are unchanged:
    /// - E_FAIL: the handle is empty, or the part does not offer ZFXISamExplicit with an explicit child, or ZFXIAlias.
    /// - The code of the request for the tag: the request failed.
    /// - "GetGenericEnglishNameERR_01": a unit is above U+00FF, and GetGenericEnglishName failed.
    static HRESULT GetUniqueLegalInstanceName(const ZFXIMSHMeshPart_var& meshPart, ZFXUnicodeString& instanceName,
                                              ZFXUnicodeString& partName) noexcept;

    /// Appends to `names` one element for each of the mesh parts, in their order: the results of
    /// GetUniqueLegalInstanceName. Always returns S_OK. The time is linear in the number of the mesh parts and of the
    /// members of their fathers.
    static HRESULT GetUniqueLegalInstanceNames(const ZFXListVal<ZFXIMSHMeshPart_var>& meshParts,
                                               ZFXListVal<QVRMeshPartNames>& names) noexcept;

    /// Sets `tag` to the integer between the first "INSTANCE" (upper case) in `name` and the next "-" or the end. If no
    /// int, as "%d" reads it, follows "INSTANCE", leaves `tag` unchanged and returns S_OK.
    /// - E_FAIL: `name` does not contain "INSTANCE". `tag` becomes -1.
    static HRESULT GetUniqueLegalInstanceTag(int& tag, const ZFXUnicodeString& name) noexcept;
};
