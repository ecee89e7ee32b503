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

/// Relative to the folder of this library, so that an installed copy can be moved. The build defines the path.
constexpr const char* kCatalogsFromLibrary = CATALOGS_FROM_LIBRARY;

std::filesystem::path InstalledFolder() {
    const auto library = ZFXLibraryFileAt(reinterpret_cast<const void*>(&Find));
    std::error_code ignored; // if there is no current folder, the path stays relative
    return std::filesystem::absolute(library, ignored).parent_path() / kCatalogsFromLibrary;
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

/// The settings and the texts that have been read. Any thread can request a message.
struct Catalogs {
    std::mutex guard;
    std::filesystem::path folder = InstalledFolder();
    std::string language;                ///< empty: English
    std::map<std::string, Texts> loaded; ///< by the name of the file without its ending

    std::optional<ZFXUnicodeString> Find(const std::string& file, std::string_view key) {
        auto found = loaded.find(file);
        if (found == loaded.end())
            found = loaded.emplace(file, Read(folder / Utf8::ToPath(file + kEnding))).first;
        const auto text = found->second.find(key);
        return text == found->second.end() ? std::nullopt : std::optional(text->second);
    }
};

Catalogs& State() {
    static auto* const state = new Catalogs; // never destroyed: messages can be requested until the process ends
    return *state;
}

/// Created when the library is loaded: its path can be relative to the folder that is current then.
[[maybe_unused]] const Catalogs& stateAtLoad = State();

/// Returns the language in the name of a translation without its ending, or an empty text for an English catalog.
std::string LanguageIn(const std::string& file) {
    const auto underscore = file.rfind('_');
    return underscore == std::string::npos ? std::string() : file.substr(underscore + 1);
}

/// Returns the language code in lower case, such as "de" for "de-AT.UTF-8", or an empty text for English.
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
    state.loaded.clear();
}

bool SetLanguage(const std::string& language) {
    std::string part = LanguagePart(language);
    const std::vector<std::string> all = Languages();
    const bool isAvailable = part.empty() || std::find(all.begin(), all.end(), part) != all.end();
    Catalogs& state = State();
    const std::lock_guard lock(state.guard);
    state.language = isAvailable ? std::move(part) : std::string();
    return isAvailable;
}

std::vector<std::string> Languages() {
    Catalogs& state = State();
    const std::lock_guard lock(state.guard);
    std::set<std::string> languages{"en"};
    std::error_code ignored; // a folder that cannot be read has no translations
    for (std::filesystem::directory_iterator file(state.folder, ignored), end; file != end; file.increment(ignored))
        if (file->path().extension() == kEnding)
            if (std::string language = LanguageIn(file->path().stem().string()); !language.empty())
                languages.insert(std::move(language));
    return {languages.begin(), languages.end()};
}

} // namespace MessageCatalog
