#pragma once

#include "QVRGenI18NUtils.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <functional>
#include <string_view>
#include <unordered_map>

[[nodiscard]] inline std::size_t HashOf(const ZFXUnicodeString& text) noexcept {
    return std::hash<std::u16string_view>()(text.Units());
}

[[nodiscard]] inline std::size_t HashOf(const ZFXISpecObject_var& object) {
    return std::hash<const ZFXBaseUnknown*>()(ZFXIdentityOf(object));
}

/// Finds the elements of a list by hash instead of by a linear search.
///
/// Only the list stores elements. The index stores positions and compares each hit with the list, so it never confuses
/// an object with an earlier one at the same address.
template <class Element>
class IndexedList {
public:
    /// Indexes the elements of the list. From then on, the list must change through this index only.
    explicit IndexedList(ZFXListVal<Element>& list) : m_list(list) {
        for (int position = 1; position <= m_list.Size(); ++position)
            Add(position);
    }

    /// Returns the position of the first element equal to `x`, or 0 if there is none.
    [[nodiscard]] int Locate(const Element& x) {
        const Entry* entry = Find(x);
        return entry == nullptr ? 0 : entry->position;
    }
    /// Returns the number of elements equal to `x`.
    [[nodiscard]] int NbOccur(const Element& x) {
        const Entry* entry = Find(x);
        return entry == nullptr ? 0 : entry->occurrences;
    }
    /// Appends an element to the list and the index.
    void Append(const Element& x) {
        m_list.Append(x);
        Add(m_list.Size());
    }

private:
    struct Entry {
        int position; // of the first of the equal elements
        int occurrences;
    };

    Entry* Find(const Element& x) {
        const auto [first, last] = m_entries.equal_range(HashOf(x));
        const auto found = std::find_if(first, last, [&](const auto& e) { return m_list[e.second.position] == x; });
        return found == last ? nullptr : &found->second;
    }
    void Add(int position) {
        assert(position >= 1 && position <= m_list.Size());
        const Element& x = m_list[position];
        if (Entry* entry = Find(x))
            ++entry->occurrences;
        else
            m_entries.emplace(HashOf(x), Entry{position, 1});
    }

    ZFXListVal<Element>& m_list;
    std::unordered_multimap<std::size_t, Entry> m_entries;
};

/// The index over the lists of one QVRGenI18NUtils. No other code appends to these lists.
struct QVRGenI18NUtils::Index {
    explicit Index(QVRGenI18NUtils& lists)
        : usedNames(lists.m_usedGenericNames),
          materials(lists.m_materialObjects),
          features(lists.m_featureObjects),
          lateTypes(lists.m_featureLateTypes),
          featureNames(lists.m_featureNames) {}

    /// Appends a feature, its name and its late type to three parallel lists.
    void AddFeature(const ZFXISpecObject_var& feature, const ZFXUnicodeString& name, const ZFXUnicodeString& lateType) {
        features.Append(feature);
        featureNames.Append(name);
        lateTypes.Append(lateType);
    }

    IndexedList<ZFXUnicodeString> usedNames;
    IndexedList<ZFXISpecObject_var> materials;
    IndexedList<ZFXISpecObject_var> features;
    IndexedList<ZFXUnicodeString> lateTypes;
    ZFXListValZFXUnicodeString& featureNames;
};
