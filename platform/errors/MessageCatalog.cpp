#include "errors/MessageCatalog.h"

#include "base/ZFXSharedLibrary.h"
#include "text/Utf8Path.h"

#include <fstream>
#include <map>
#include <mutex>
#include <system_error>

namespace MessageCatalog {
namespace {

using Texts = std::map<std::string, ZFXUnicodeString, std::less<>>;

std::filesystem::path FolderBesideThisLibrary() {
    const auto library = ZFXSharedLibrary::FileAt(reinterpret_cast<const void*>(&Find));
    if (library.empty())
        return "msgcatalog";
    std::error_code ignored; // without a current folder the path stays as it is
    return std::filesystem::absolute(library, ignored).parent_path() / "msgcatalog";
}

std::string_view Trim(std::string_view text) noexcept {
    const auto first = text.find_first_not_of(" \t\r");
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

Texts Read(const std::filesystem::path& file) {
    Texts texts;
    std::ifstream in(file, std::ios::binary);
    for (std::string line; std::getline(in, line);) {
        const std::string_view row = Trim(line);
        const auto equals = row.find('=');
        if (row.empty() || row.front() == '#' || equals == std::string_view::npos)
            continue;
        texts.insert_or_assign(std::string(Trim(row.substr(0, equals))),
                               ZFXUnicodeString(std::string(Trim(row.substr(equals + 1))).c_str()));
    }
    return texts;
}

/// Messages are asked for by any thread that got a refusal.
struct Catalogs {
    std::mutex guard;
    std::filesystem::path folder = FolderBesideThisLibrary();
    std::map<std::string, Texts> known;
};

Catalogs& State() {
    static auto* const state = new Catalogs; // refusals may be read until the process ends
    return *state;
}

/// Made at load: the library's path may be relative to the folder that is current then.
[[maybe_unused]] const Catalogs& stateAtLoad = State();

} // namespace

std::optional<ZFXUnicodeString> Find(const std::string& catalog, std::string_view key) {
    Catalogs& state = State();
    const std::lock_guard lock(state.guard);
    auto known = state.known.find(catalog);
    if (known == state.known.end())
        known = state.known.emplace(catalog, Read(state.folder / Utf8::ToPath(catalog + ".catalog"))).first;
    const auto text = known->second.find(key);
    return text == known->second.end() ? std::nullopt : std::optional(text->second);
}

void SetFolder(const std::string& folder) {
    Catalogs& state = State();
    const std::lock_guard lock(state.guard);
    state.folder = Utf8::ToPath(folder);
    state.known.clear();
}

} // namespace MessageCatalog
