#pragma once

#include "text/ZFXUnicodeString.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

/// Numbered names: a base with a decimal number behind it.
namespace Numbering {

/// The number behind the base in a name; 0 when the name does not begin with exactly the base, or when no
/// number that an int can hold follows it. Reads in place.
int NumberAfter(const ZFXUnicodeString& base, const ZFXUnicodeString& name) noexcept;

/// The base with the number behind it.
ZFXUnicodeString Numbered(const ZFXUnicodeString& base, int number);

/// The numbers that are in use in a scope.
class InUse {
public:
    /// For at most `count` numbers.
    explicit InUse(std::size_t count) : m_low(count + 2) {}

    void Add(int number) noexcept {
        m_highest = std::max(m_highest, number);
        if (number > 0 && static_cast<std::size_t>(number) < m_low.size())
            m_low[static_cast<std::size_t>(number)] = true;
    }
    /// Takes the next number: one more than the highest; when there is none above the highest, the lowest that is free.
    /// (Of one number more than are in use one is free.)
    int Take() {
        if (m_highest < std::numeric_limits<int>::max()) {
            Add(m_highest + 1);
            return m_highest;
        }
        m_lowest = std::find(m_low.begin() + m_lowest, m_low.end(), false) - m_low.begin();
        m_low[static_cast<std::size_t>(m_lowest)] = true;
        return static_cast<int>(m_lowest);
    }

private:
    int m_highest = 0;
    std::vector<bool> m_low;
    std::ptrdiff_t m_lowest = 1; // all below are in use
};

} // namespace Numbering
