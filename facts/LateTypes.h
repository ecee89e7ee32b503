#pragma once

#include "text/ZFXUnicodeString.h"

/// The late types that the library treats specially, from LateTypes.def. The tables are constant-initialized, so code
/// that runs while a module is loaded may use them.
namespace LateTypes {

/// What a feature of a late type normally is. The rows of LateTypeKinds.def. (In ARCHITECTURE.md and in contracts, the
/// kind of a feature is the late type of its set.)
enum class Kind {
#define KIND(kind, checks, proposals) kind,
#include "LateTypeKinds.def"
#undef KIND
};

/// Guarded: the module provides the alias of such features and checks each change of it.
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

/// Returns true if the table has a row with exactly this late type and this kind.
[[nodiscard]] inline bool IsOfKind(const ZFXUnicodeString& lateType, Kind kind) {
    for (const Row& row : kRows)
        if (row.kind == kind && lateType == row.lateType)
            return true;
    return false;
}

/// Returns true if a row with exactly this late type is guarded.
inline bool IsGuarded(const ZFXUnicodeString& lateType) {
    for (const Row& row : kRows)
        if (row.alias == Alias::Guarded && lateType == row.lateType)
            return true;
    return false;
}

} // namespace LateTypes
