#include "TestSupport.h"

#include <windows.h>

namespace {

TEST(FilesOnWindows, LeavesTheFileIfItCannotBeWritten) {
    const TestFolder folder;
    const std::string text = ReadFile(Example("rename-a-step.json"));
    const std::string file = folder.Write("document.json", text);
    const std::wstring name = Utf8::ToPath(file).wstring();
    const auto expectError = [&](const char* why) {
        const RunResult result = RunWith({"rename", file, "Perturbation", "Last"});
        EXPECT_EQ(result.code, 2);
        EXPECT_EQ(result.out, "") << "a renaming was reported that failed";
        EXPECT_EQ(result.err, "qvrnames: " + file + ": cannot be written: " + why + "\n");
        EXPECT_EQ(ReadFile(file), text);
        EXPECT_EQ(folder.Files(), 1U);
    };
    const HANDLE reader = CreateFileW(name.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    expectError("Device or resource busy");
    CloseHandle(reader);
    SetFileAttributesW(name.c_str(), FILE_ATTRIBUTE_READONLY);
    expectError("Permission denied");
    SetFileAttributesW(name.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(RunWith({"rename", file, "Perturbation", "Last"}).code, 0);
}

} // namespace
