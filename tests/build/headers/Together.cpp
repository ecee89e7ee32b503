#include "Everything.h"

#include <functional>
#include <type_traits>

namespace {

/// The number of operators that compare the operands, counted for both orders of the operands.
template <class Left, class Right, class... Operators>
constexpr int kOperators = (... + (std::is_invocable_v<Operators, const Left&, const Right&> +
                                   std::is_invocable_v<Operators, const Right&, const Left&>));
#ifdef __cpp_impl_three_way_comparison
template <class Left, class Right>
constexpr bool kHaveThreeWay = requires(const Left& left, const Right& right) {
    left <=> right;
};
#else
template <class Left, class Right>
constexpr bool kHaveThreeWay = false;
#endif

/// Both orders of the operands compare for equality, and neither compares addresses for an order.
template <class Left, class Right>
constexpr bool kHaveOnlyEquality =
    kOperators<Left, Right, std::equal_to<>, std::not_equal_to<>> == 4 &&
    kOperators<Left, Right, std::less<>, std::less_equal<>, std::greater<>, std::greater_equal<>> == 0 &&
    !kHaveThreeWay<Left, Right> && !kHaveThreeWay<Right, Left>;

static_assert(kHaveOnlyEquality<ZFXUnicodeString, ZFXUnicodeString>);
static_assert(kHaveOnlyEquality<ZFXUnicodeString, const char*>);
static_assert(kHaveOnlyEquality<ZFXUnicodeString, char[5]>);
static_assert(kHaveOnlyEquality<ZFXUnicodeString, std::nullptr_t>);
static_assert(kHaveOnlyEquality<ZFXUnicodeChar, ZFXUnicodeChar>);
static_assert(kHaveOnlyEquality<ZFXUnicodeChar, char>);
static_assert(kHaveOnlyEquality<ZFXIAlias_var, ZFXIAlias_var>);
static_assert(kHaveOnlyEquality<ZFXIAlias_var, ZFXBaseUnknown_var>);
static_assert(kHaveOnlyEquality<ZFXIAlias_var, ZFXIAlias*>);
static_assert(kHaveOnlyEquality<ZFXIAlias_var, const ZFXBaseUnknown*>);
static_assert(kHaveOnlyEquality<ZFXIAlias_var, std::nullptr_t>);
static_assert(!std::is_invocable_v<std::logical_not<>, const ZFXUnicodeString&>); // would compare a pointer with null

/// All forms in which strings are compared with narrow text: by content, wherever it is stored.
bool StringsCompareByContent() {
    const ZFXUnicodeString name("Step");
    const char equal[] = "Step";
    const char other[] = "Stop";
    return name == equal && equal == name && name != other && other != name && !(name != equal) && !(equal != name) &&
           !(name == other) && !(other == name);
}

} // namespace

/// All forms in which handles are compared: before C++20 none follows from another.
int main() {
    MemoryModel model;
    const ZFXISpecObject_var step = model.NewDocument().Case("Static").History().Step("QVRGeneralStaticStepLT", "Step");
    const ZFXBaseUnknown_var root = step;
    const ZFXIAlias_var none;
    const ZFXISpecObject* raw = step;
    const bool same = step == root && root == step && step == raw && raw == root && none == nullptr && nullptr == none;
    const bool other = step != none && step != nullptr && nullptr != root && raw != none && none != raw;
    const bool notOther = !(step != root) && !(root != raw) && !(raw != step) && !(none != nullptr);
    return StringsCompareByContent() && same && other && notOther && IID_ZFXIAlias != IID_ZFXBaseUnknown ? 0 : 1;
}
