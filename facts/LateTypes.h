#pragma once

#include "text/ZFXUnicodeString.h"

/// The late types that the library treats specially, from LateTypes.def. All of it is constant-initialized, so code
/// that runs while a module is loaded may use it.
namespace LateTypes {

/// What a feature of the type normally is.
enum class Kind {
#define KIND(kind, checks, proposals) kind,
#include "LateTypeKinds.def"
#undef KIND
};

/// Whether the module provides the alias of such features and checks each change of it (Guarded).
enum class Alias { Open, Guarded };

struct Row {
    const char* lateType;
    Kind kind;
    const char* baseName; // null if the type has none
    Alias alias;
};

inline constexpr Row kRows[] = {
#define LATE_TYPE(lateType, kind, baseName, alias, description) {#lateType, Kind::kind, baseName, Alias::alias},
#include "LateTypes.def"
#undef LATE_TYPE
};

// A constant for each late type: QVRJobLT is "QVRJobLT".
#define LATE_TYPE(lateType, ...) inline constexpr const char* lateType = #lateType;
#include "LateTypes.def"
#undef LATE_TYPE

/// Returns true if a row of the kind has exactly this late type.
inline bool IsOfKind(const ZFXUnicodeString& lateType, Kind kind) {
    for (const Row& row : kRows)
        if (row.kind == kind && lateType == row.lateType)
            return true;
    return false;
}

} // namespace LateTypes
