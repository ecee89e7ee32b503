#include "locale/ZFXLocale.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

TEST(Locale, FollowsTheMessageLocaleUntilAHostSetsIt) {
    ZFXFollowMessageLocale();
    std::setlocale(LC_MESSAGES, "C");
    EXPECT_EQ(GetUserDefaultLCID(), 0x0409U);
    EXPECT_EQ(GetKeyboardLayout(0), 0x04090409U);
    ZFXSetLocales(0x0407, 0xF0010409);
    EXPECT_EQ(GetUserDefaultLCID(), 0x0407U);
    EXPECT_EQ(GetKeyboardLayout(0), 0xF0010409U);
    ZFXFollowMessageLocale();
    EXPECT_EQ(GetUserDefaultLCID(), 0x0409U);
}

} // namespace
