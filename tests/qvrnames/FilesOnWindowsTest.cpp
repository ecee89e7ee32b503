#include "Workshop.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace {

TEST(FilesOnWindows, LeavesTheFileWhenItCannotBeWritten) {
    const Workshop shop;
    const std::string text = TextOfFile(Example("rename-a-step.json"));
    const std::string file = shop.Write("document.json", text);
    const std::wstring name = Utf8::ToPath(file).wstring();
    const auto refused = [&](const char* why) {
        const Told told = RunWith({"rename", file, "Perturbation", "Last"});
        EXPECT_EQ(told.code, 2);
        EXPECT_EQ(told.out, "") << "a change was told that did not happen";
        EXPECT_NE(told.err.find(file + ": cannot be written: " + why), std::string::npos) << told.err;
        EXPECT_EQ(TextOfFile(file), text);
        EXPECT_EQ(shop.Files(), 1U);
    };
    const HANDLE reader = CreateFileW(name.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    refused("Device or resource busy");
    CloseHandle(reader);
    SetFileAttributesW(name.c_str(), FILE_ATTRIBUTE_READONLY);
    refused("Permission denied");
    SetFileAttributesW(name.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(RunWith({"rename", file, "Perturbation", "Last"}).code, 0);
}

} // namespace
