#include "errors/MessageCatalog.h"

#include "base/ZFXLibraryFile.h"
#include "text/Utf8Path.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <mutex>
#include <set>
#include <system_error>

namespace MessageCatalog {
namespace {

constexpr const char* kEnding = ".msg";

using Texts = std::map<std::string, ZFXUnicodeString, std::less<>>;

std::filesystem::path FolderBesideThisLibrary() {
    const auto library = ZFXLibraryFileAt(reinterpret_cast<const void*>(&Find));
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
    std::string language;               ///< empty: English
    std::map<std::string, Texts> known; ///< by the name of the file

    std::optional<ZFXUnicodeString> Find(const std::string& file, std::string_view key) {
        auto found = known.find(file);
        if (found == known.end())
            found = known.emplace(file, Read(folder / Utf8::ToPath(file + kEnding))).first;
        const auto text = found->second.find(key);
        return text == found->second.end() ? std::nullopt : std::optional(text->second);
    }
};

Catalogs& State() {
    static auto* const state = new Catalogs; // refusals may be read until the process ends
    return *state;
}

/// Made at load: the library's path may be relative to the folder that is current then.
[[maybe_unused]] const Catalogs& stateAtLoad = State();

/// The language in the name of a translation, without its ending; empty for that of an English catalog.
std::string LanguageIn(const std::string& file) {
    const auto underscore = file.rfind('_');
    return underscore == std::string::npos ? std::string() : file.substr(underscore + 1);
}

/// "de" of "de-AT.UTF-8"; empty for English.
std::string LanguagePart(const std::string& language) {
    std::string part = language.substr(0, language.find_first_of("_-.@"));
    std::transform(part.begin(), part.end(), part.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return part == "en" || part == "c" || part == "posix" ? std::string() : part;
}

} // namespace

std::optional<ZFXUnicodeString> Find(const std::string& catalog, std::string_view key) {
    Catalogs& state = State();
    const std::lock_guard lock(state.guard);
    if (!state.language.empty())
        if (auto translated = state.Find(catalog + "_" + state.language, key))
            return translated;
    return state.Find(catalog, key);
}

void SetFolder(const std::string& folder) {
    Catalogs& state = State();
    const std::lock_guard lock(state.guard);
    state.folder = Utf8::ToPath(folder);
    state.known.clear();
}

bool SetLanguage(const std::string& language) {
    std::string part = LanguagePart(language);
    const std::vector<std::string> there = Languages();
    const bool isThere = part.empty() || std::find(there.begin(), there.end(), part) != there.end();
    Catalogs& state = State();
    const std::lock_guard lock(state.guard);
    state.language = isThere ? std::move(part) : std::string();
    return isThere;
}

std::vector<std::string> Languages() {
    Catalogs& state = State();
    const std::lock_guard lock(state.guard);
    std::set<std::string> languages{"en"};
    std::error_code ignored; // without a folder there is nothing but English
    for (std::filesystem::directory_iterator file(state.folder, ignored), end; file != end; file.increment(ignored))
        if (file->path().extension() == kEnding)
            if (std::string language = LanguageIn(file->path().stem().string()); !language.empty())
                languages.insert(std::move(language));
    return {languages.begin(), languages.end()};
}

} // namespace MessageCatalog
