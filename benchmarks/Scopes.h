#pragma once

#include "memory-model/MemoryModel.h"

#include <map>
#include <string_view>
#include <utility>

/// Documents that several benchmarks share. Each is built at its first use and kept until the process ends.
namespace Scopes {

/// What implements the alias of a feature: the platform, or the extension of the library.
enum class AliasSource { Platform, Extension };

inline constexpr int kLargest = 100000;
/// The numbers of features with which scans are measured.
inline constexpr int kSizes[] = {1000, 2000, kLargest / 2, kLargest};

const char* LateTypeOf(AliasSource from);
const char* LabelOf(AliasSource from);

MemoryModel& Model();
/// Returns a new, empty document of the model.
MemoryDocument NewDocument();
/// Appends `count` features to a set. Their names are the base followed by 1, 2 and so on.
void Fill(MemoryFeature set, const char* lateType, const ZFXUnicodeString& base, int count);
/// Returns the base followed by the number in decimal digits.
ZFXUnicodeString NumberedName(const ZFXUnicodeString& base, int number);

/// Returns n features with the names "Pressure-1" and so on, in this order.
ZFXListValZFXBaseUnknown_var FirstFeatures(AliasSource from, int n);
/// Returns kLargest features in a random order, as if they had been created and moved over hours of work: neighbours in
/// the list are not neighbours in memory.
ZFXListValZFXBaseUnknown_var ScatteredFeatures(AliasSource from);
/// Returns a feature that FirstFeatures never returns.
ZFXISpecObject_var UnlistedFeature(AliasSource from);

/// Returns the highest number after the base in the names of the features. For each feature it makes the requests of
/// GetNextUniqueName (the cast to ZFXIAlias, the alias by value, the release) and reads the digits after the base.
int HighestNumberByHand(const ZFXListValZFXBaseUnknown_var& features, std::u16string_view base);

/// Returns make(n), from a cache after the first call.
template <class Value>
const Value& Cached(Value (*make)(int), int n) {
    // Never destroyed, because the model is never destroyed.
    static auto& cache = *new std::map<std::pair<Value (*)(int), int>, Value>;
    const auto key = std::pair(make, n);
    const auto found = cache.find(key);
    return found != cache.end() ? found->second : cache.emplace(key, make(n)).first->second;
}

} // namespace Scopes
