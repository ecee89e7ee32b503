#include "support/SingletonTest.h"

#include <tuple>

namespace {

using CompliantNamesTest = SingletonTest;

TEST_F(CompliantNamesTest, GenericNameReplacesANameThatTheSolverRejects) {
    // clang-format off
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"Load.1", "SAMThickness", "Load-1"}, {"", "SAMThickness", ""}, {"厚", "SAMThickness", "Thickness"},
        {"厚", "SAMThickness", "Thickness-1"}, {"板", "SAMThickness", "Thickness-2"}, {"厚", "QVRxQVR", "厚"},
        {"samx厚", "QVRLayupLT", "x厚"}, {"厚", "Lmsx", "x"}, {"厚", "QV", "QV"}, {"厚", "aQVR", "aQVR"},
        {"厚", "aQVR", "aQVR-1"}, {"厚", "sam", ""}, {"厚", "qvrx", "x"},
        {"厚", "a.b", "a.b"}, // full stops of a generic name are not replaced
    };
    // clang-format on
    QVRGenI18NUtils other(*utils); // every object counts in the list of the singleton
    for (const auto& [name, generic, expected] : rows) {
        ZFXUnicodeString compliant("before");
        EXPECT_EQ(other.GetTARNISCompliantFeatureName(name, generic, compliant), S_OK);
        EXPECT_EQ(compliant, expected) << name << " " << generic;
    }
    ZFXUnicodeString generic("SAMThickness"); // one object for the generic name and the result
    EXPECT_EQ(utils->GetTARNISCompliantFeatureName("厚", generic, generic), S_OK);
    EXPECT_EQ(generic, "Thickness-3");
    int count = 0;
    EXPECT_EQ(utils->FindNameAndNextID("SAMThickness", count), 1);
    EXPECT_EQ(count, 4);
    EXPECT_EQ(utils->FindNameAndNextID("samthickness", count), 0);
    EXPECT_EQ(count, 0);
}

} // namespace
