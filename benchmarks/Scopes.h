#pragma once

#include "memory-model/MemoryModel.h"

/// Documents that several benchmarks share. Each is built at its first use and kept until the process ends.
namespace Scopes {

/// What implements the alias of a feature: the platform, or the extension of the library.
enum class AliasSource { Platform, Extension };

inline constexpr int kLargest = 100000;
/// The numbers of features with which scans are measured.
inline constexpr int kSizes[] = {1000, 2000, 10000, 50000, kLargest};

const char* LateTypeOf(AliasSource from);
const char* LabelOf(AliasSource from);

MemoryModel& Model();
/// Returns a new, empty document of the model.
MemoryDocument NewDocument();
/// Appends `count` features to a set: the base followed by 1, 2 and so on.
void Fill(MemoryFeature set, const char* lateType, const ZFXUnicodeString& base, int count);
/// Returns the base followed by the number in decimal digits.
ZFXUnicodeString NumberedName(const ZFXUnicodeString& base, int number);

/// Returns n features with the names "Pressure-1" and so on, in this order.
ZFXListValZFXBaseUnknown_var FirstFeatures(AliasSource from, int n);
/// Returns a feature that FirstFeatures never returns.
ZFXISpecObject_var UnlistedFeature(AliasSource from);

} // namespace Scopes
