#include "Scopes.h"

#include <array>

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

ZFXISpecObject_var UnlistedFeature(AliasSource from) { return PoolOf(from).unlisted; }

} // namespace Scopes
