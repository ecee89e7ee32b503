#include "TestSupport.h"

#include <csignal>
#include <tuple>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Returns the lowest unused file descriptor.
int NextDescriptor() {
    const int file = dup(STDIN_FILENO);
    close(file);
    return file;
}

TEST(FilesOnPosix, KeepsPermissionsAndLinks) {
    const TestFolder folder;
    const int descriptor = NextDescriptor();
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
    EXPECT_EQ(NextDescriptor(), descriptor) << "a file was not closed";
}

TEST(FilesOnPosix, LeavesTheFileIfItCannotBeWritten) {
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
    EXPECT_EQ(result.out, "") << "a renaming was reported that failed";
    EXPECT_EQ(result.err, "qvrnames: " + file + ": cannot be written: File too large\n");
    EXPECT_EQ(ReadFile(file), text);
    EXPECT_EQ(folder.Files(), 1U);
}

volatile std::sig_atomic_t signalWhileWriting = 0;

TEST(FilesOnPosix, LeavesNoTemporaryFileIfASignalEndsTheProgram) {
    const TestFolder folder;
    const std::string file = folder.Write("document.json", ReadFile(Example("rename-a-step.json")));
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) {
        const auto rename = [&] {
            signalWhileWriting = signal;
            std::signal(signal, SIG_DFL);
            std::signal(SIGXFSZ, [](int) { std::raise(signalWhileWriting); });
            const rlimit tiny{100, 100};
            setrlimit(RLIMIT_FSIZE, &tiny);
            std::ignore = RunWith({"rename", file, "Perturbation", "Last"});
        };
        EXPECT_EXIT(rename(), ::testing::KilledBySignal(signal), "");
        EXPECT_EQ(folder.Files(), 1U) << signal;
    }
}

TEST(FilesOnPosix, ReportsMissingPermissions) {
    const TestFolder folder;
    const std::string file = folder.Write("document.json", R"({"cases": [{"name": "A"}]})");
    const std::string secret = folder.Write("secret.json", "{}");
    const std::string output = folder.Path("output.json");
    const std::string locked = folder.Path("locked");
    ASSERT_EQ(mkdir(locked.c_str(), 0), 0);
    ASSERT_EQ(chmod(file.c_str(), 0444), 0);
    EXPECT_EQ(RunWith({"rename", file, "A", "B"}).err,
              "qvrnames: " + file + ": cannot be written: Permission denied\n");
    EXPECT_EQ(ReadFile(file), R"({"cases": [{"name": "A"}]})");
    ASSERT_EQ(chmod(file.c_str(), 0666), 0);
    ASSERT_EQ(chmod(secret.c_str(), 0), 0);
    ASSERT_EQ(chmod(folder.Path(".").c_str(), 0555), 0);
    const uid_t user = geteuid();
    ASSERT_EQ(seteuid(user == 0 ? 65534 : user), 0); // root may open every file
    const RunResult read = RunWith({"audit", folder.Path("")});
    const RunResult created = RunWith({"rename", file, "A", "B", "--output", output});
    const RunResult replaced = RunWith({"rename", file, "A", "B"});
    ASSERT_EQ(seteuid(user), 0);
    ASSERT_EQ(chmod(folder.Path(".").c_str(), 0755), 0);
    ASSERT_EQ(chmod(locked.c_str(), 0755), 0);
    EXPECT_EQ(read.err, "qvrnames: " + locked + ": cannot be read: Permission denied\nqvrnames: " + secret +
                            ": cannot be read: Permission denied\n");
    EXPECT_EQ(read.out, "3 documents (2 unusable), 1 feature checked, 0 refusals\n");
    const std::string why = ": cannot be written: its folder " + std::filesystem::path(file).parent_path().string() +
                            " does not permit that a file is created or replaced (Permission denied); change the "
                            "permissions of the folder, or write to another one\n";
    EXPECT_EQ(created.err, "qvrnames: " + output + why);
    EXPECT_EQ(replaced.err, "qvrnames: " + file + why);
    EXPECT_EQ(folder.Files(), 3U);
}

TEST(FilesOnPosix, PrintsControlCharactersInAPathAsEscapes) {
    const TestFolder folder;
    const std::string table = folder.Write("names.csv", "name,kind\n");
    EXPECT_EQ(RunWith({"import", table, "--output", folder.Path("a\nb.json")}).out,
              folder.Path("a\\u000Ab.json") + ": 0 rows imported\n");
}

/// Collects what is printed. Releases the lock of a file after the first line.
class UnlockingBuffer : public std::stringbuf {
public:
    explicit UnlockingBuffer(const std::string& file) : m_file(open(file.c_str(), O_RDONLY)) { flock(m_file, LOCK_EX); }
    ~UnlockingBuffer() override { close(m_file); }

private:
    int sync() override { return flock(m_file, LOCK_UN); }

    const int m_file;
};

TEST(FilesOnPosix, ReportsThatItWaitsForALock) {
    const TestFolder folder;
    const std::string file = folder.Write("document.json", R"({"cases": [{"name": "A."}]})");
    const char* const rows[][5] = {{"qvrnames", "fix", file.c_str(), "--write", "--json"},
                                   {"qvrnames", "rename", file.c_str(), "A-", "B"}};
    for (const auto& arguments : rows) {
        UnlockingBuffer printed(file);
        std::ostringstream out;
        std::ostream err(&printed);
        alarm(60); // ends a program that waits without a message
        EXPECT_EQ(::Run(5, arguments, out, err), 0);
        alarm(0);
        EXPECT_EQ(printed.str(), "qvrnames: " + file + ": locked by another process; waiting for it\n");
    }
    EXPECT_EQ(ReadFile(file), R"({"cases": [{"name": "B"}]})");
}

TEST(FilesOnPosix, ReportsAReadError) {
    EXPECT_EQ(RunWith({"audit", "/proc/self/mem"}).err,
              "qvrnames: /proc/self/mem: cannot be read: Input/output error\n");
}

} // namespace
