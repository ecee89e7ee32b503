#pragma once

#include "text/ZFXUnicodeString.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

/// The scope of the enumeration that RemoveAll takes.
class ZFXCollec {
public:
    /// The treatment of the storage when all elements are removed: it is freed.
    enum MemoryHandling { ReleaseAllocation = 1 };
};

/// An ordered list of values, with indexes from 1 to Size(). Elements are in the order in which they were appended, and
/// duplicates are allowed. An element cannot be changed in place. A copy contains copies of the elements: handles are
/// copied, the objects that they refer to are not.
///
/// Use Append to fill a list, and an index or a range-based loop to read it:
///
///     for (int i = 1; i <= list.Size(); ++i)
///         Print(list[i]);
template <class Element>
class ZFXListVal {
public:
    /// Returns the number of elements.
    [[nodiscard]] int Size() const noexcept { return static_cast<int>(m_elements.size()); }

    /// Returns the element at index i, or an empty element if i is not in 1 to Size(). [borrowed]
    [[nodiscard]] const Element& operator[](int i) const {
        static const Element kEmpty{};
        return IsIndex(i) ? m_elements[static_cast<std::size_t>(i - 1)] : kEmpty;
    }

    /// Returns an iterator to the first element. Elements can be moved out of a list through it.
    /// @{
    [[nodiscard]] auto begin() const noexcept { return m_elements.begin(); }
    [[nodiscard]] auto begin() noexcept { return m_elements.begin(); }
    /// @}
    /// Returns an iterator past the last element.
    /// @{
    [[nodiscard]] auto end() const noexcept { return m_elements.end(); }
    [[nodiscard]] auto end() noexcept { return m_elements.end(); }
    /// @}

    /// Appends a copy of x.
    void Append(const Element& x) { m_elements.push_back(x); }
    /// Appends x by moving it.
    void Append(Element&& x) { m_elements.push_back(std::move(x)); }

    /// Returns the index of the first element equal to x at or after index `from`, or 0 if there is none. A `from`
    /// below 1 counts as 1.
    [[nodiscard]] int Locate(const Element& x, int from = 1) const {
        const auto start = m_elements.begin() + (std::clamp(from, 1, Size() + 1) - 1);
        const auto found = std::find(start, m_elements.end(), x);
        return found == m_elements.end() ? 0 : static_cast<int>(found - m_elements.begin()) + 1;
    }
    /// Returns the number of elements equal to x.
    [[nodiscard]] int NbOccur(const Element& x) const {
        return static_cast<int>(std::count(m_elements.begin(), m_elements.end(), x));
    }
    /// Removes the element at index i; the later elements move up by one. Does nothing if i is not in 1 to Size().
    void RemovePosition(int i) {
        if (IsIndex(i))
            m_elements.erase(m_elements.begin() + (i - 1));
    }
    /// Removes all elements and frees the storage.
    void RemoveAll(ZFXCollec::MemoryHandling = ZFXCollec::ReleaseAllocation) {
        std::vector<Element>().swap(m_elements);
    }
    /// Reserves storage for at least n elements. The storage grows by at least half, so that many calls with a slowly
    /// growing n do not move the elements each time.
    void Reserve(int n) {
        const auto wanted = static_cast<std::size_t>(std::max(n, 0));
        if (wanted > m_elements.capacity())
            m_elements.reserve(std::max(wanted, m_elements.capacity() / 2 * 3));
    }

private:
    bool IsIndex(int i) const noexcept { return i >= 1 && i <= Size(); }

    std::vector<Element> m_elements;
};

using ZFXListValZFXUnicodeString = ZFXListVal<ZFXUnicodeString>;
/// An ordered, growable list of int.
using ZFXRawCollint = ZFXListVal<int>;
