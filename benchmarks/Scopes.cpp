#include "Scopes.h"

#include <array>

namespace Scopes {

namespace {

struct Stock {
    explicit Stock(AliasFrom from) {
        MemoryFeature model = NewDocument().Model();
        MemoryFeature set = model.Set("BenchmarkSet");
        for (int i = 1; i <= kLargest; ++i)
            features.Append(ZFXBaseUnknown_var(set.Feature(LateTypeOf(from), NumberedName("Pressure-", i)).Object()));
        newcomer = model.Set("BenchmarkSet").Feature(LateTypeOf(from), "Newcomer");
    }

    ZFXListValZFXBaseUnknown_var features;
    MemoryFeature newcomer;
};

const Stock& StockOf(AliasFrom from) {
    // Never destroyed, as the model is not.
    static std::array<const Stock*, 2> stocks{};
    const Stock*& stock = stocks[from == AliasFrom::Platform ? 0 : 1];
    if (stock == nullptr)
        stock = new Stock(from);
    return *stock;
}

} // namespace

const char* LateTypeOf(AliasFrom from) {
    return from == AliasFrom::Platform ? "QVRPressure" : "QVRInteractionPropertyLT";
}

const char* WordOf(AliasFrom from) { return from == AliasFrom::Platform ? "platform" : "extension"; }

MemoryModel& Model() {
    // Never destroyed: the singleton of the naming module may hold features until the process ends.
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

ZFXListValZFXBaseUnknown_var FirstFeatures(AliasFrom from, int n) {
    const ZFXListValZFXBaseUnknown_var& all = StockOf(from).features;
    ZFXListValZFXBaseUnknown_var first;
    first.Reserve(n);
    for (int i = 1; i <= n; ++i)
        first.Append(all[i]);
    return first;
}

ZFXISpecObject_var Newcomer(AliasFrom from) { return StockOf(from).newcomer; }

} // namespace Scopes
