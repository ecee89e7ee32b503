#include "TestSupport.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace {

TEST(FilesOnWindows, LeavesTheFileWhenItCannotBeWritten) {
    const TestFolder folder;
    const std::string text = ReadFile(Example("rename-a-step.json"));
    const std::string file = folder.Write("document.json", text);
    const std::wstring name = Utf8::ToPath(file).wstring();
    const auto refused = [&](const char* why) {
        const RunResult result = RunWith({"rename", file, "Perturbation", "Last"});
        EXPECT_EQ(result.code, 2);
        EXPECT_EQ(result.out, "") << "a change was result that did not happen";
        EXPECT_NE(result.err.find(file + ": cannot be written: " + why), std::string::npos) << result.err;
        EXPECT_EQ(ReadFile(file), text);
        EXPECT_EQ(folder.Files(), 1U);
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
