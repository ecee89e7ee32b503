#pragma once

#include "internal/Decision.h"
#include "object-model/ZFXHandle.h"

#include <optional>
#include <unordered_map>
#include <vector>

/// The names of objects. Each name is requested once.
class NameCache {
public:
    /// Returns the alias of an object, or nothing if the object does not offer ZFXIAlias. The result is valid as long
    /// as the cache exists.
    const std::optional<ZFXUnicodeString>& Of(const ZFXBaseUnknown_var& object);

private:
    std::unordered_map<const ZFXBaseUnknown*, std::optional<ZFXUnicodeString>> m_names;
};

/// The features of one scope by name, for checking many names of the scope: finds in constant time what
/// IsNameUniqueInSet finds by comparing a name with one feature after the other.
class ScopeIndex {
public:
    explicit ScopeIndex(NameCache& names) : m_names(names) {}

    /// @param namelessAsEmpty  true if a feature without a name has the name "", false if it is a failure
    void Add(const ZFXListValZFXBaseUnknown_var& features, bool namelessAsEmpty);

    /// Returns the first failure of comparing `name` with all features but `self`: "DuplicateNameERR_02" for a clash,
    /// "ZFXIAliasERR_01" for a feature without a name.
    Decision Compare(const ZFXBaseUnknown_var& self, const ZFXUnicodeString& name) const;

private:
    /// Not noexcept: GCC's standard library then stores the hash of each name instead of computing it repeatedly.
    struct HashOfName {
        std::size_t operator()(const ZFXUnicodeString* name) const { return name->HashIgnoringCase(); }
    };
    struct Clash {
        bool operator()(const ZFXUnicodeString* a, const ZFXUnicodeString* b) const noexcept {
            return a->Compare(*b) != 0;
        }
    };
    /// The first two objects with one name. The name of the first object clashes with that of the second.
    struct Owners {
        std::size_t first;
        std::optional<std::size_t> second = {};
    };

    NameCache& m_names;
    std::vector<ZFXBaseUnknown_var> m_features;
    std::unordered_map<const ZFXUnicodeString*, Owners, HashOfName, Clash> m_owners;
    std::optional<std::size_t> m_firstNameless;
};
