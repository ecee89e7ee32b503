#include "TestSupport.h"

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

TEST(FilesOnPosix, KeepsPermissionsAndLinks) {
    const TestFolder folder;
    const std::string file = folder.Write("document.json", R"({"cases": [{"name": "A"}]})");
    const std::string link = folder.Path("link.json");
    const std::string output = folder.Path("output.json");
    ASSERT_EQ(chmod(file.c_str(), 0640), 0);
    std::filesystem::create_symlink("document.json", link);
    EXPECT_EQ(RunWith({"rename", link, "A", "B", "--output", output}).code, 0);
    EXPECT_EQ(ReadFile(file), R"({"cases": [{"name": "A"}]})");
    EXPECT_EQ(ReadFile(output), R"({"cases": [{"name": "B"}]})");
    EXPECT_EQ(RunWith({"rename", link, "A", "C"}).code, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(ReadFile(file), R"({"cases": [{"name": "C"}]})");
    for (const std::string& written : {file, output})
        EXPECT_EQ(static_cast<int>(std::filesystem::status(written).permissions()), 0640) << written;
}

TEST(FilesOnPosix, LeavesTheFileWhenItCannotBeWritten) {
    const TestFolder folder;
    const std::string text = ReadFile(Example("rename-a-step.json"));
    const std::string file = folder.Write("document.json", text);
    rlimit former{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &former), 0);
    const rlimit tiny{100, former.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tiny), 0);
    const RunResult result = RunWith({"rename", file, "Perturbation", "Last"});
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &former), 0);
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.out, "") << "a change was result that did not happen";
    EXPECT_NE(result.err.find(file + ": cannot be written: File too large"), std::string::npos) << result.err;
    EXPECT_EQ(ReadFile(file), text);
    EXPECT_EQ(folder.Files(), 1U);
}

TEST(FilesOnPosix, ReportsTheErrorOfTheSystemWhileReading) {
    const RunResult result = RunWith({"audit", "/proc/self/mem"});
    EXPECT_NE(result.err.find("/proc/self/mem: cannot be read: Input/output error"), std::string::npos) << result.err;
}

} // namespace
