#include "TestSupport.h"
#include "terminal/Progress.h"

#include <nlohmann/json.hpp>

#include "memory-model/MemoryModel.h"

#include <filesystem>
#include <regex>

namespace {

using Json = nlohmann::json;

/// What a transcript contains instead of the texts of a run.
const std::pair<std::string, std::string> kReplacements[] = {
    {"{examples}", QVRNAMES_FOLDER "/examples"}, {"{here}", TRANSCRIPTS_FOLDER}, {"\\e", "\x1B"}};

/// Replaces every occurrence of a text.
std::string Replaced(std::string text, const std::string& old, const std::string& with) {
    for (std::size_t at = 0; (at = text.find(old, at)) != std::string::npos; at += with.size())
        text.replace(at, old.size(), with);
    return text;
}

/// Splits a command line into words. A word in single quotes may contain spaces. The escapes are those of JSON.
std::vector<std::string> Words(const std::string& line) {
    static const std::regex kWord("'([^']*)'|([^ ]+)");
    std::vector<std::string> words;
    for (std::sregex_iterator match(line.begin(), line.end(), kWord), end; match != end; ++match) {
        words.push_back(Json::parse('"' + match->str(1) + match->str(2) + '"'));
        for (const auto& [placeholder, text] : kReplacements)
            words.back() = Replaced(words.back(), placeholder, text);
    }
    return words;
}

/// Runs the command lines of a transcript and compares all output and the exit codes. A command line may begin with
/// COLUMNS=N, the width of a terminal. To regenerate the transcripts, run qvrnames-tests with QVR_WRITE_EXPECTED=1 and
/// examine the difference.
using TranscriptTest = ::testing::TestWithParam<std::string>;

TEST_P(TranscriptTest, OutputIsUnchanged) {
    std::filesystem::current_path(Utf8::ToPath(TRANSCRIPTS_FOLDER));
    const std::string path = TRANSCRIPTS_FOLDER "/" + GetParam() + ".txt";
    const std::string expected = Replaced(ReadFile(path), "\r", "");
    std::istringstream lines(expected);
    std::string printed;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t program = line.find("qvrnames");
        if (!line.starts_with("$ ") || program == std::string::npos)
            continue;
        const std::size_t columns = line.find("COLUMNS=") == 2 ? std::stoul(line.substr(10)) : 0;
        const RunResult result = RunWith(Words(line.substr(program + 8)), {columns, columns > 0});
        EXPECT_EQ(MemoryModel::LiveObjects(), 0) << "the document was not released: " << line;
        std::string output = result.out + (result.err.empty() ? "" : "standard error: " + result.err);
        for (const auto& [placeholder, text] : kReplacements)
            output = Replaced(output, text, placeholder);
        printed += line + "\n" + output + "exit code " + std::to_string(result.code) + "\n\n";
    }
    EXPECT_EQ(printed, expected);
    WriteIfRequested(path, printed);
}

INSTANTIATE_TEST_SUITE_P(Each, TranscriptTest,
                         ::testing::Values("audit", "check", "deck", "explain", "fix", "help", "import", "paths",
                                           "propose", "rename", "reports", "terminals", "usage"),
                         [](const auto& transcript) { return transcript.param; });

TEST(Commands, EstimateTheRemainingTime) {
    using std::chrono::seconds;
    EXPECT_EQ(ProgressText(0, 3, seconds(5)), "0 % of 3 documents");
    EXPECT_EQ(ProgressText(1, 3, seconds(5)), "33 % of 3 documents, 10 s left");
    EXPECT_EQ(ProgressText(299, 300, seconds(900)), "99 % of 300 documents, 3 s left");
}

TEST(Commands, IgnoreTheFindingsOfABaseline) {
    const TestFolder folder;
    const std::string baseline = folder.Path("baseline.json");
    const std::string document =
        folder.Write("document.json", R"({"cases": [{"name": "1"}, {"name": "1"}, {"name": "2"}]})");
    const std::vector<std::string> audit{"audit", document, "--baseline", baseline};
    EXPECT_EQ(RunWith(audit).code, 2) << "the file does not exist";
    EXPECT_EQ(RunWith({"audit", document, "--write-baseline", baseline}).code, 0);
    const RunResult known = RunWith(audit);
    EXPECT_EQ(known.out, "3 features checked, 0 refusals\n");
    EXPECT_EQ(known.code, 0);
    folder.Write("document.json", R"({"cases": [{"comment": "moved", "name": "1"}, {"name": "1"}, {"name": "1"}]})");
    const RunResult changed = RunWith(audit);
    EXPECT_EQ(changed.code, 1);
    EXPECT_NE(changed.out.find("3 features checked, 1 refusal\n"), std::string::npos) << changed.out;
    EXPECT_EQ(changed.err, "qvrnames: " + baseline + ": no longer found: " + document + ": 2: LeadingDigitERR_01\n");
    for (const char* text :
         {"", "[]", R"({"version": 2, "findings": []})", R"({"version": 1, "findings": [{"file": 1}]})"}) {
        folder.Write("baseline.json", text);
        EXPECT_EQ(RunWith(audit).err, "qvrnames: " + baseline + ": not a baseline; --write-baseline writes one\n")
            << text;
        const RunResult write = RunWith({"audit", document, "--write-baseline", baseline});
        EXPECT_EQ(write.code, 2) << text;
        EXPECT_EQ(write.err,
                  "qvrnames: " + baseline + ": not replaced, because it is not a baseline; specify a new file\n");
        EXPECT_EQ(ReadFile(baseline), text) << "a file was lost that is not a baseline";
    }
    const std::string fresh = folder.Path("new.json");
    EXPECT_EQ(RunWith({"audit", document, baseline, "--write-baseline", fresh}).code, 2) << "unusable";
    EXPECT_FALSE(std::filesystem::exists(Utf8::ToPath(fresh)));
}

TEST(Commands, PrintAbsolutePathsAsUris) {
    const TestFolder folder;
    const std::string document = folder.Write("a b.json", R"({"cases": [{"name": "1"}]})");
    const std::string sarif = RunWith({"audit", document, "--format", "sarif"}).out;
    EXPECT_TRUE(std::regex_search(sarif, std::regex("\"uri\": \"file:///[^ ]*Tr%C3%A4ger[^ ]*/a%20b\\.json\"")))
        << sarif;
}

TEST(Commands, ReturnTwoForUnusableFiles) {
    const TestFolder folder;
    const std::string empty = folder.Write("empty.json", "");
    const std::string large = folder.Write("large.json", "");
    std::filesystem::resize_file(Utf8::ToPath(large), (std::uintmax_t{256} << 20) + 1);
    const std::string folderPath = folder.Path(".");
    const std::string step = Example("rename-a-step.json");
    const std::pair<std::vector<std::string>, std::string> rows[] = {
        {{"check", "\xFF"}, "an argument is not UTF-8: \uFFFD"},
        {{"deck", folderPath}, folderPath + ": cannot be read: Is a directory"},
        {{"audit", empty}, empty + ": the file is empty; a JSON object was expected"},
        {{"audit", large}, large + ": larger than 256 MB, the maximum size of a file"},
        {{"rename", step, "step", "x", "--output", "/no/such/folder/x"},
         "/no/such/folder/x: cannot be written: No such file or directory"},
        {{"rename", step, "step", "x", "--output", folderPath}, folderPath + ": cannot be written: not a regular file"},
    };
    for (const auto& [arguments, expected] : rows) {
        const RunResult result = RunWith(arguments);
        EXPECT_EQ(result.code, 2) << expected;
        EXPECT_EQ(result.out, "") << expected;
        EXPECT_EQ(result.err, "qvrnames: " + expected + "\n");
    }
}

} // namespace
