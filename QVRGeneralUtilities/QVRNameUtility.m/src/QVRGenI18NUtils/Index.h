#pragma once

#include "QVRGenI18NUtils.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Finds in the lists of the singleton what stands in them. It answers from those lists, which nobody else can change,
/// and from late types, which no object ever changes; never from names, which do change.
struct QVRGenI18NUtils::Index {
    /// How often each text was counted.
    class Counts {
    public:
        int Of(const ZFXUnicodeString& text) const {
            const auto found = m_counts.find(text.Units());
            return found == m_counts.end() ? 0 : found->second;
        }
        void Add(const ZFXUnicodeString& text) {
            const auto found = m_counts.find(text.Units());
            if (found == m_counts.end())
                m_counts.emplace(text.Units(), 1);
            else
                ++found->second;
        }

    private:
        struct Hash {
            using is_transparent = void;
            std::size_t operator()(std::u16string_view text) const noexcept {
                return std::hash<std::u16string_view>()(text);
            }
        };
        std::unordered_map<std::u16string, int, Hash, std::equal_to<>> m_counts;
    };

    /// The position of each object in its list.
    class Positions {
    public:
        /// 0 for an object that is not listed.
        int Of(const ZFXISpecObject_var& object) const {
            const auto found = m_positions.find(ZFXIdentityOf(object));
            return found == m_positions.end() ? 0 : found->second;
        }
        void Add(const ZFXISpecObject_var& object, int position) { m_positions[ZFXIdentityOf(object)] = position; }

    private:
        std::unordered_map<const ZFXBaseUnknown*, int> m_positions; // the list keeps the objects alive
    };

    Counts usedNames;
    Positions materials;
    Positions features;
    Counts lateTypes;                 // of the features, but
    std::vector<int> withoutLateType; // positions of those that were not asked yet, or did not answer
};
