#include "locale/ZFXLocale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

TEST(Locale, FollowsTheMessageLocaleUnlessAHostSetsIt) {
    ZFXFollowMessageLocale();
    std::setlocale(LC_MESSAGES, "C");
    ZFXSetLocales(0x0407, 0xF0010409);
    EXPECT_EQ(GetUserDefaultLCID(), 0x0407U);
    EXPECT_EQ(GetKeyboardLayout(0), 0xF0010409U);
    ZFXFollowMessageLocale();
    EXPECT_EQ(GetUserDefaultLCID(), 0x0409U);
}

// The C library finds a locale by the name of its folder: links with other names to one locale are enough.
TEST(Locale, ThirteenEnglishLocalesHaveIdentifiers) {
    const std::filesystem::path content = "/usr/lib/locale/C.utf8";
    if (!std::filesystem::exists(content))
        GTEST_SKIP() << "the system has no locale C.utf8";
    std::string folder = (std::filesystem::temp_directory_path() / "qvr-locales-XXXXXX").string();
    ASSERT_NE(mkdtemp(folder.data()), nullptr);
    ASSERT_EQ(setenv("LOCPATH", folder.c_str(), 1), 0);
    ZFXFollowMessageLocale();
    const auto identifierOf = [&](const std::string& name) {
        std::filesystem::create_directory_symlink(content, folder + "/" + name);
        EXPECT_NE(std::setlocale(LC_MESSAGES, name.c_str()), nullptr) << name;
        EXPECT_EQ(GetKeyboardLayout(0), GetUserDefaultLCID() * 0x10001U) << name;
        return GetUserDefaultLCID();
    };
    const char* const english[] = {"en_US", "en_GB",  "en_AU", "en_CA", "en_NZ", "en_IE", "en_ZA",
                                   "en_JM", "en_029", "en_BZ", "en_TT", "en_ZW", "en_PH"};
    LCID expected = 0x0409;
    for (const char* name : english) {
        EXPECT_EQ(identifierOf(name), expected) << name;
        expected += 0x0400;
    }
    EXPECT_EQ(identifierOf("en_GB.UTF-8"), 0x0809U);
    EXPECT_EQ(identifierOf("en_IE@euro"), 0x1809U);
    for (const char* other : {"en_IN", "de_DE", "tr_TR", "en"})
        EXPECT_EQ(identifierOf(other), 0x1000U) << other;
    std::setlocale(LC_MESSAGES, "C");
    unsetenv("LOCPATH");
    std::filesystem::remove_all(folder);
}

} // namespace
