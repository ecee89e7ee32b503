#include "QVRGenI18NUtils.h"

#include "locale/ZFXLocale.h"
#include "support/Results.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

/// A new object. The singleton examines its locales only once per process.
class Utils : public QVRGenI18NUtils {};

TEST(EnglishMode, ThirteenLocalesAreEnglish) {
    Utils utils;
    for (LCID id = 0; id <= 0xFFFF; ++id) {
        const LCID sublanguage = id >> 10U;
        const bool isEnglish = (id & 0x3FFU) == 9 && sublanguage >= 1 && sublanguage <= 13;
        ZFXSetLocales(id, id);
        EXPECT_EQ(utils.IsEnglishUserLocale(), isEnglish ? 1 : 0) << id;
        EXPECT_EQ(utils.IsEnglishInputLocale(), isEnglish ? 1 : 0) << id;
    }
    ZFXFollowMessageLocale();
}

TEST(EnglishMode, FirstCallOfGetInitialLocalesDeterminesTheMode) {
    const std::tuple<LCID, HKL, unsigned char, unsigned char> rows[] = {
        {0x0409, 0x04090409, 1, 1}, {0x0407, 0x04090409, 0, 1}, {0x3409, 0xF0030809, 1, 1},
        {0x4009, 0x0411, 0, 0},     {0x10409, 0x1009, 0, 1},    {0x0809, 0x040C, 1, 0},
    };
    for (const auto& [user, input, userEnglish, inputEnglish] : rows) {
        Utils utils;
        ZFXSetLocales(user, input);
        EXPECT_EQ(utils.IsInitialUserLocaleEnglish() + utils.IsInitialInputLocaleEnglish(), 0) << "not yet examined";
        EXPECT_EQ(CapturedOutput([&] { utils.GetInitialLocales(); }),
                  std::string("The initial user locale is ") + (userEnglish ? "" : "NOT ") +
                      "English.\nThe initial input locale is " + (inputEnglish ? "" : "NOT ") + "English.\n");
        ZFXSetLocales(0x0407, 0x0407); // a later change has no effect on the mode
        utils.ResetAllLists();
        QVRGenI18NUtils copy(utils);
        for (QVRGenI18NUtils* each : {static_cast<QVRGenI18NUtils*>(&utils), &copy}) {
            EXPECT_EQ(
                CapturedOutput([&, mode = userEnglish & inputEnglish] { EXPECT_EQ(each->IsEnglishMode(), mode); }), "");
            EXPECT_EQ(each->IsInitialUserLocaleEnglish(), userEnglish) << user;
            EXPECT_EQ(each->IsInitialInputLocaleEnglish(), inputEnglish) << input;
        }
    }
    ZFXFollowMessageLocale();
}

} // namespace
