#pragma once

#include "text/ZFXUnicodeString.h"

#include <algorithm>
#include <limits>
#include <vector>

/// Numbered names: a base with a decimal number behind it.
namespace Numbering {

/// The number behind the base in a name; 0 when the name does not begin with exactly the base, or when no
/// number that an int can hold follows it. Reads in place.
int NumberAfter(const ZFXUnicodeString& base, const ZFXUnicodeString& name) noexcept;

/// The base with the number behind it.
ZFXUnicodeString Numbered(const ZFXUnicodeString& base, int number);

/// The number to propose next in a scope of `count` elements, of which element i (from 1) uses `numberOf(i)`:
/// one more than the highest; when there is none above the highest, the lowest number that no element uses.
template <class NumberOf>
int NextNumber(int count, NumberOf numberOf) {
    int highest = 0;
    for (int i = 1; i <= count; ++i)
        highest = std::max(highest, numberOf(i));
    if (highest < std::numeric_limits<int>::max())
        return highest + 1;
    std::vector<bool> used(static_cast<std::size_t>(count) + 2); // count elements leave one of count + 1 numbers free
    for (int i = 1; i <= count; ++i) {
        const int number = numberOf(i);
        if (number > 0 && number <= count)
            used[static_cast<std::size_t>(number)] = true;
    }
    return static_cast<int>(std::find(used.begin() + 1, used.end(), false) - used.begin());
}

} // namespace Numbering
