#pragma once

#include "text/ZFXUnicodeString.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <limits>
#include <vector>

/// Numbered names: a base name followed by a decimal number.
namespace Numbering {

/// Returns the number after the base in a name. Returns 0 if the name does not begin with exactly the base, or if no
/// number in the range of int follows. Allocates no memory.
[[nodiscard]] int NumberAfter(const ZFXUnicodeString& base, const ZFXUnicodeString& name) noexcept;

/// Returns the base followed by the number.
[[nodiscard]] ZFXUnicodeString NumberedName(const ZFXUnicodeString& base, int number);

/// Returns `name` if `earlierUses` is 0, else `name`, "-" and `earlierUses`.
[[nodiscard]] ZFXUnicodeString DistinctName(const ZFXUnicodeString& name, int earlierUses);

/// Returns the next name for a generic name that QVRGenI18NUtils::Instance counts: the generic name itself at first,
/// then followed by "-1", "-2" and so on. Records that the generic name was issued once more.
[[nodiscard]] ZFXUnicodeString IssueGenericName(const ZFXUnicodeString& genericName);

/// Allocates the numbers that are unused in a scope.
class NumberAllocator {
public:
    /// `count` is the largest number of calls of MarkUsed and Allocate together.
    explicit NumberAllocator(std::size_t count) : m_isUsed(count + 2) {}

    /// Marks a number as used. Numbers below 1 have no effect.
    void MarkUsed(int number) noexcept {
        m_highest = std::max(m_highest, number);
        if (number > 0 && static_cast<std::size_t>(number) < m_isUsed.size())
            m_isUsed[static_cast<std::size_t>(number)] = true;
    }
    /// Returns the next number and marks it as used: one more than the highest used number. If the highest is the
    /// largest int, returns the lowest unused number. Requires that the limit of the constructor is not exceeded.
    [[nodiscard]] int Allocate() {
        if (m_highest < std::numeric_limits<int>::max()) {
            MarkUsed(m_highest + 1);
            return m_highest;
        }
        m_lowest = std::find(m_isUsed.begin() + m_lowest, m_isUsed.end(), false) - m_isUsed.begin();
        assert(static_cast<std::size_t>(m_lowest) < m_isUsed.size());
        m_isUsed[static_cast<std::size_t>(m_lowest)] = true;
        return static_cast<int>(m_lowest);
    }

private:
    int m_highest = 0;
    std::vector<bool> m_isUsed;  // the index is the number; at least one of the numbers 1 to `count` + 1 is unused
    std::ptrdiff_t m_lowest = 1; // all lower numbers are used
};

} // namespace Numbering
