#include "Scopes.h"

#include "analysis/ZFXIAlias.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

namespace Scopes {

namespace {

/// A set of kLargest features, and one feature in another set.
struct FeaturePool {
    explicit FeaturePool(AliasSource from) {
        MemoryFeature model = NewDocument().Model();
        MemoryFeature set = model.Set("BenchmarkSet");
        for (int i = 1; i <= kLargest; ++i)
            features.Append(ZFXBaseUnknown_var(set.Feature(LateTypeOf(from), NumberedName("Pressure-", i)).Object()));
        unlisted = model.Set("BenchmarkSet").Feature(LateTypeOf(from), "Newcomer");
    }

    ZFXListValZFXBaseUnknown_var features;
    MemoryFeature unlisted;
};

const FeaturePool& PoolOf(AliasSource from) {
    // Never destroyed, because the model is never destroyed.
    static std::array<const FeaturePool*, 2> pools{};
    const FeaturePool*& pool = pools[from == AliasSource::Platform ? 0 : 1];
    if (pool == nullptr)
        pool = new FeaturePool(from);
    return *pool;
}

/// Returns the number in the digits at the start of a text, or 0 if there are none or it is too large for an int.
int ReadNumber(std::u16string_view text) {
    std::int64_t number = 0;
    for (const char16_t unit : text) {
        if (unit < u'0' || unit > u'9')
            break;
        number = number * 10 + (unit - u'0');
        if (number > std::numeric_limits<int>::max())
            return 0;
    }
    return static_cast<int>(number);
}

} // namespace

const char* LateTypeOf(AliasSource from) {
    return from == AliasSource::Platform ? "QVRPressure" : "QVRInteractionPropertyLT";
}

const char* LabelOf(AliasSource from) { return from == AliasSource::Platform ? "platform" : "extension"; }

MemoryModel& Model() {
    // Never destroyed: the singleton of the library may keep references to features until the process ends.
    static MemoryModel* const model = new MemoryModel;
    return *model;
}

MemoryDocument NewDocument() { return Model().NewDocument(); }

ZFXUnicodeString NumberedName(const ZFXUnicodeString& base, int number) {
    ZFXUnicodeString digits;
    digits.BuildFromNum(number, "%d");
    return base + digits;
}

void Fill(MemoryFeature set, const char* lateType, const ZFXUnicodeString& base, int count) {
    for (int i = 1; i <= count; ++i)
        set.Feature(lateType, NumberedName(base, i));
}

ZFXListValZFXBaseUnknown_var FirstFeatures(AliasSource from, int n) {
    const ZFXListValZFXBaseUnknown_var& all = PoolOf(from).features;
    ZFXListValZFXBaseUnknown_var first;
    first.Reserve(n);
    for (int i = 1; i <= n; ++i)
        first.Append(all[i]);
    return first;
}

ZFXListValZFXBaseUnknown_var ScatteredFeatures(AliasSource from) {
    const ZFXListValZFXBaseUnknown_var& all = PoolOf(from).features;
    std::vector<ZFXBaseUnknown_var> objects(all.begin(), all.end());
    std::shuffle(objects.begin(), objects.end(), std::mt19937()); // with a fixed seed
    ZFXListValZFXBaseUnknown_var scattered;
    for (const ZFXBaseUnknown_var& object : objects)
        scattered.Append(object);
    return scattered;
}

int HighestNumberByHand(const ZFXListValZFXBaseUnknown_var& features, std::u16string_view base) {
    int highest = 0;
    for (const ZFXBaseUnknown_var& feature : features) {
        const ZFXIAlias_var alias(feature);
        const ZFXUnicodeString name = alias->GetAlias();
        const std::u16string_view units = name.Units();
        if (units.size() >= base.size() && std::memcmp(units.data(), base.data(), base.size() * sizeof(char16_t)) == 0)
            highest = std::max(highest, ReadNumber(units.substr(base.size())));
    }
    return highest;
}

ZFXISpecObject_var UnlistedFeature(AliasSource from) { return PoolOf(from).unlisted; }

} // namespace Scopes
