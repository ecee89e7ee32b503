#include "document/KnownTypes.h"

#include "document/DocumentKeys.h"

#include "LateTypes.h"

#include <string_view>

namespace {

constexpr std::string_view kWords[] = {
#define NAMED_WORD(name, text) text,
#include "Vocabulary.def"
#undef NAMED_WORD
};

/// Late types begin with the prefix of the module, of the host or of its mesh parts. Some sets of the host have none.
bool IsLateType(std::string_view word) {
    return word.starts_with("QVR") || word.starts_with("SAM") || word.starts_with("MSH") || word.ends_with("Set");
}

} // namespace

const std::vector<std::string>& KnownLateTypes() {
    static const std::vector<std::string> types = [] {
        std::vector<std::string> all;
        for (const LateTypes::Row& row : LateTypes::kRows)
            all.emplace_back(row.lateType);
        for (const std::string_view word : kWords)
            if (IsLateType(word))
                all.emplace_back(word);
        for (const ChildKey& child : kChildKeys)
            if (child.defaultType != nullptr)
                all.emplace_back(child.defaultType);
        return all;
    }();
    return types;
}
