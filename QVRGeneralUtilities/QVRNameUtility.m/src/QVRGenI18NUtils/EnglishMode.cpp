#include "QVRGenI18NUtils.h"

#include "locale/ZFXLocale.h"

#include <algorithm>
#include <cstdint>
#include <iostream>
#include <tuple>

namespace {

/// The locale identifiers that count as English: United States, United Kingdom, Australia, Canada, New Zealand,
/// Ireland, South Africa, Jamaica, Caribbean, Belize, Trinidad and Tobago, Zimbabwe, Philippines.
constexpr int EnglishLocaleIds[] = {0x0409, 0x0809, 0x0C09, 0x1009, 0x1409, 0x1809, 0x1C09,
                                    0x2009, 0x2409, 0x2809, 0x2C09, 0x3009, 0x3409};

void PrintInitialLocale(const char* which, unsigned char english) {
    std::cout << "The initial " << which << " locale is " << (english != 0 ? "" : "NOT ") << "English." << std::endl;
}

} // namespace

unsigned char QVRGenI18NUtils::IsLCIDInEnglishIDs(int lcid) noexcept {
    return std::ranges::find(EnglishLocaleIds, lcid) != std::end(EnglishLocaleIds) ? 1 : 0;
}

unsigned char QVRGenI18NUtils::IsEnglishUserLocale() noexcept {
    return IsLCIDInEnglishIDs(static_cast<int>(GetUserDefaultLCID()));
}

unsigned char QVRGenI18NUtils::IsEnglishInputLocale() noexcept {
    return IsLCIDInEnglishIDs(static_cast<int>(reinterpret_cast<std::uintptr_t>(GetKeyboardLayout(0)) & 0xFFFFU));
}

unsigned char QVRGenI18NUtils::IsEnglishMode() noexcept {
    if (m_localesChecked != 0)
        return m_englishMode;
    m_initialUserLocaleEnglish = IsEnglishUserLocale();
    m_initialInputLocaleEnglish = IsEnglishInputLocale();
    m_englishMode = m_initialUserLocaleEnglish & m_initialInputLocaleEnglish;
    m_localesChecked = 1;
    PrintInitialLocale("user", m_initialUserLocaleEnglish);
    PrintInitialLocale("input", m_initialInputLocaleEnglish);
    return m_englishMode;
}

void QVRGenI18NUtils::GetInitialLocales() noexcept { std::ignore = IsEnglishMode(); }

unsigned char QVRGenI18NUtils::IsInitialUserLocaleEnglish() noexcept { return m_initialUserLocaleEnglish; }

unsigned char QVRGenI18NUtils::IsInitialInputLocaleEnglish() noexcept { return m_initialInputLocaleEnglish; }
