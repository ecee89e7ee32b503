#pragma once

#include "collections/ZFXCollec.h"
#include "text/ZFXUnicodeString.h"

#include <algorithm>
#include <cstddef>
#include <vector>

/// An ordered list of values, counted from 1 to Size(). Duplicates are kept; order is insertion order. A copy
/// holds the same elements (handles are copied, the objects behind them are not).
template <class Element>
class ZFXListVal {
public:
    /// How many elements there are.
    int Size() const noexcept { return static_cast<int>(m_elements.size()); }

    /// The element at index i. Outside 1 to Size() an empty element is given, so that no index is undefined.
    const Element& operator[](int i) const {
        static const Element kNone{};
        return Holds(i) ? m_elements[Slot(i)] : kNone;
    }
    /// The same to be changed; what is written outside goes nowhere.
    Element& operator[](int i) {
        if (Holds(i))
            return m_elements[Slot(i)];
        m_outside = Element{};
        return m_outside;
    }

    /// The elements in order, for a range-for.
    auto begin() const noexcept { return m_elements.begin(); }
    /// Behind the last one.
    auto end() const noexcept { return m_elements.end(); }

    /// Puts a copy at the end.
    void Append(const Element& x) { m_elements.push_back(x); }
    /// Puts it at the end.
    void Append(Element&& x) { m_elements.push_back(std::move(x)); }

    /// The index of the first element equal to x at or after index `from`; 0 when there is none.
    int Locate(const Element& x, int from = 1) const {
        const auto start = m_elements.begin() + (std::clamp(from, 1, Size() + 1) - 1);
        const auto found = std::find(start, m_elements.end(), x);
        return found == m_elements.end() ? 0 : static_cast<int>(found - m_elements.begin()) + 1;
    }
    /// How many elements equal x.
    int NbOccur(const Element& x) const {
        return static_cast<int>(std::count(m_elements.begin(), m_elements.end(), x));
    }
    /// Removes the element at index i; the later ones move up. Outside 1 to Size() nothing happens.
    void RemovePosition(int i) {
        if (Holds(i))
            m_elements.erase(m_elements.begin() + (i - 1));
    }
    /// Empties the list.
    void RemoveAll(ZFXCollec::MemoryHandling /*storage goes as well*/ = ZFXCollec::ReleaseAllocation) {
        std::vector<Element>().swap(m_elements);
        m_outside = Element{};
    }
    /// Makes room for n elements at once; for some more when there was room for some, so that a list that grows by many
    /// such calls is not moved by each.
    void Reserve(int n) {
        const auto wanted = static_cast<std::size_t>(std::max(n, 0));
        if (wanted > m_elements.capacity())
            m_elements.reserve(std::max(wanted, m_elements.capacity() / 2 * 3));
    }

private:
    bool Holds(int i) const noexcept { return i >= 1 && i <= Size(); }
    static std::size_t Slot(int i) noexcept { return static_cast<std::size_t>(i - 1); }

    std::vector<Element> m_elements;
    Element m_outside{};
};

using ZFXListValZFXUnicodeString = ZFXListVal<ZFXUnicodeString>;
