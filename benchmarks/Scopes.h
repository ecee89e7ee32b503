#pragma once

#include "memory-model/MemoryModel.h"

/// The documents that the benchmarks read: made when first asked for, kept for the whole run.
namespace Scopes {

/// Whose alias a feature has: the document's own, or that of the naming module's extension.
enum class AliasFrom { Platform, Extension };

inline constexpr int kLargest = 100000;
/// The sizes that scans are measured at.
inline constexpr int kSizes[] = {1000, 2000, 10000, 50000, kLargest};

const char* LateTypeOf(AliasFrom from);
const char* WordOf(AliasFrom from);

/// The one model.
MemoryModel& Model();
/// An empty document of its own.
MemoryDocument NewDocument();
/// Appends features named base1, base2 and so on to a set.
void Fill(MemoryFeature set, const char* lateType, const ZFXUnicodeString& base, int count);
/// "Pressure-" and the number.
ZFXUnicodeString NumberedName(const ZFXUnicodeString& base, int number);

/// The first n features, in the order in which they were made, called "Pressure-1" and so on.
ZFXListValZFXBaseUnknown_var FirstFeatures(AliasFrom from, int n);
/// A feature that none of the lists holds.
ZFXISpecObject_var Newcomer(AliasFrom from);

} // namespace Scopes
