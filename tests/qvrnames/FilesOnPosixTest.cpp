#include "Workshop.h"

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

TEST(FilesOnPosix, KeepsPermissionsAndLinks) {
    const Workshop shop;
    const std::string file = shop.Write("document.json", R"({"cases": [{"name": "A"}]})");
    const std::string link = shop.Path("link.json");
    const std::string output = shop.Path("output.json");
    ASSERT_EQ(chmod(file.c_str(), 0640), 0);
    std::filesystem::create_symlink("document.json", link);
    EXPECT_EQ(RunWith({"rename", link, "A", "B", "--output", output}).code, 0);
    EXPECT_EQ(TextOfFile(file), R"({"cases": [{"name": "A"}]})");
    EXPECT_EQ(TextOfFile(output), R"({"cases": [{"name": "B"}]})");
    EXPECT_EQ(RunWith({"rename", link, "A", "C"}).code, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(TextOfFile(file), R"({"cases": [{"name": "C"}]})");
    for (const std::string& written : {file, output})
        EXPECT_EQ(static_cast<int>(std::filesystem::status(written).permissions()), 0640) << written;
}

TEST(FilesOnPosix, LeavesTheFileWhenItCannotBeWritten) {
    const Workshop shop;
    const std::string text = TextOfFile(Example("rename-a-step.json"));
    const std::string file = shop.Write("document.json", text);
    rlimit former{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &former), 0);
    const rlimit tiny{100, former.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tiny), 0);
    const Told told = RunWith({"rename", file, "Perturbation", "Last"});
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &former), 0);
    EXPECT_EQ(told.code, 2);
    EXPECT_EQ(told.out, "") << "a change was told that did not happen";
    EXPECT_NE(told.err.find(file + ": cannot be written: File too large"), std::string::npos) << told.err;
    EXPECT_EQ(TextOfFile(file), text);
    EXPECT_EQ(shop.Files(), 1U);
}

TEST(FilesOnPosix, TellsWhatTheSystemSaysWhileItReads) {
    const Told told = RunWith({"audit", "/proc/self/mem"});
    EXPECT_NE(told.err.find("/proc/self/mem: cannot be read: Input/output error"), std::string::npos) << told.err;
}

} // namespace
