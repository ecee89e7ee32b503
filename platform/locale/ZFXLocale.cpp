#include "locale/ZFXLocale.h"

#include <clocale>
#include <optional>
#include <string_view>

namespace {

struct Row {
    std::string_view name; // as a message locale begins
    LCID id;
};

constexpr LCID kEnglishUnitedStates = 0x0409;
constexpr LCID kWithoutIdentifier = 0x1000;

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

std::optional<Locales>& Chosen() {
    static std::optional<Locales> chosen;
    return chosen;
}

LCID MessageLocale() {
    const char* current = std::setlocale(LC_MESSAGES, nullptr);
    const std::string_view full(current == nullptr ? "C" : current);
    const std::string_view name = full.substr(0, full.find_first_of(".@")); // without encoding and variant
    if (name == "C" || name == "POSIX")
        return kEnglishUnitedStates;
    for (const Row& row : kEnglishLocales)
        if (row.name == name)
            return row.id;
    return kWithoutIdentifier;
}

} // namespace

LCID GetUserDefaultLCID() { return Chosen() ? Chosen()->user : MessageLocale(); }

HKL GetKeyboardLayout(std::uint32_t /*thread*/) {
    if (Chosen())
        return Chosen()->input;
    const HKL language = MessageLocale();
    return language << 16 | language;
}

void ZFXSetLocales(LCID userLocale, HKL inputLocale) { Chosen() = Locales{userLocale, inputLocale}; }

void ZFXFollowMessageLocale() { Chosen().reset(); }
