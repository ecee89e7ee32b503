#include "locale/ZFXLocale.h"

#include <clocale>
#include <optional>
#include <string_view>

namespace {

struct Row {
    std::string_view name; // of the message locale, without encoding and variant
    LCID id;
};

constexpr LCID kEnglishUnitedStates = 0x0409;
constexpr LCID kNoIdentifier = 0x1000;

constexpr Row kEnglishLocales[] = {
    {"en_US", kEnglishUnitedStates},
    {"en_GB", 0x0809},
    {"en_AU", 0x0C09},
    {"en_CA", 0x1009},
    {"en_NZ", 0x1409},
    {"en_IE", 0x1809},
    {"en_ZA", 0x1C09},
    {"en_JM", 0x2009},
    {"en_029", 0x2409},
    {"en_BZ", 0x2809},
    {"en_TT", 0x2C09},
    {"en_ZW", 0x3009},
    {"en_PH", 0x3409},
};

struct Locales {
    LCID user;
    HKL input;
};

/// The values that a host has set, if any.
std::optional<Locales>& HostLocales() {
    static std::optional<Locales> locales;
    return locales;
}

LCID MessageLocale() {
    const char* current = std::setlocale(LC_MESSAGES, nullptr);
    const std::string_view full(current == nullptr ? "C" : current);
    const std::string_view name = full.substr(0, full.find_first_of(".@"));
    if (name == "C" || name == "POSIX")
        return kEnglishUnitedStates;
    for (const Row& row : kEnglishLocales)
        if (row.name == name)
            return row.id;
    return kNoIdentifier;
}

} // namespace

LCID GetUserDefaultLCID() { return HostLocales() ? HostLocales()->user : MessageLocale(); }

HKL GetKeyboardLayout(std::uint32_t /*thread*/) {
    if (HostLocales())
        return HostLocales()->input;
    const HKL language = MessageLocale();
    return language << 16 | language;
}

void ZFXSetLocales(LCID userLocale, HKL inputLocale) { HostLocales() = Locales{userLocale, inputLocale}; }

void ZFXFollowMessageLocale() { HostLocales().reset(); }
