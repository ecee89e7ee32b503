#include "TestSupport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <filesystem>
#include <map>

namespace {

/// Replaces every occurrence of a text.
std::string Replaced(std::string text, const std::string& old, const std::string& with) {
    for (std::size_t at = 0; (at = text.find(old, at)) != std::string::npos; at += with.size())
        text.replace(at, old.size(), with);
    return text;
}

/// Splits a command line into words. Words in single quotes may contain spaces.
std::vector<std::string> Words(const std::string& line) {
    std::vector<std::string> words;
    std::string word;
    bool isQuoted = false;
    bool hasWord = false;
    for (const char c : line + " ") {
        if (c == '\'') {
            isQuoted = !isQuoted;
            hasWord = true;
        } else if (c != ' ' || isQuoted) {
            word += c;
            hasWord = true;
        } else if (hasWord) {
            words.push_back(std::exchange(word, ""));
            hasWord = false;
        }
    }
    return words;
}

/// Runs the command lines of one transcript and compares all that they print, and their exit codes.
/// To write the transcripts anew, run qvrnames-tests with QVR_WRITE_EXPECTED=1 and look at the difference.
class TranscriptTest : public ::testing::TestWithParam<const char*> {};

TEST_P(TranscriptTest, IsPrintedAgain) {
    const std::string folder = TRANSCRIPTS_FOLDER;
    const std::string path = folder + "/" + GetParam() + ".txt";
    const std::map<std::string, std::string> places{{"{examples}", QVRNAMES_FOLDER "/examples"}, {"{here}", folder}};
    std::istringstream lines(Replaced(ReadFile(path), "\r", ""));
    const std::string expected = lines.str();
    std::string printed;
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("$ qvrnames"))
            continue;
        std::string command = line.substr(10);
        for (const auto& [name, place] : places)
            command = Replaced(command, name, place);
        const RunResult result = RunWith(Words(command));
        std::string output = result.out + (result.err.empty() ? "" : "standard error: " + result.err);
        for (const auto& [name, place] : places)
            output = Replaced(output, place, name);
        printed += line + "\n" + output + "exit code " + std::to_string(result.code) + "\n\n";
    }
    if (std::getenv("QVR_WRITE_EXPECTED") != nullptr) // NOLINT(concurrency-mt-unsafe): there is one thread
        std::ofstream(path, std::ios::binary) << printed;
    EXPECT_EQ(printed, expected);
}

INSTANTIATE_TEST_SUITE_P(Each, TranscriptTest, ::testing::Values("audit", "check", "deck", "help", "propose", "usage"),
                         [](const auto& transcript) { return std::string(transcript.param); });

TEST(Commands, ReturnTwoForUnusableFiles) {
    const TestFolder folder;
    const std::string empty = folder.Write("empty.json", "");
    const std::string large = folder.Write("large.json", "");
    std::filesystem::resize_file(Utf8::ToPath(large), (std::uintmax_t{256} << 20) + 1);
    const std::string folderPath = folder.Path(".");
    const std::string step = Example("rename-a-step.json");
    const struct {
        std::vector<std::string> arguments;
        std::string expected;
    } rows[] = {
        {{"check", "\xFF"}, "an argument is not UTF-8"},
        {{"audit", "/no/such.json"}, "/no/such.json: cannot be read: No such file or directory"},
        {{"audit", folderPath}, folderPath + ": cannot be read: Is a directory"},
        {{"audit", empty}, empty + ": the file is empty"},
        {{"audit", large}, large + ": larger than 256 MB"},
        {{"rename", step, "step", "x", "--output", "/no/such/folder/x"}, "/no/such/folder/x: cannot be written"},
        {{"rename", step, "step", "x", "--output", folderPath}, folderPath + ": cannot be written: not a regular file"},
    };
    for (const auto& row : rows) {
        const RunResult result = RunWith(row.arguments);
        EXPECT_EQ(result.code, 2) << row.expected;
        EXPECT_EQ(result.out, "");
        EXPECT_NE(result.err.find("qvrnames: " + row.expected), std::string::npos) << result.err;
    }
}

TEST(Commands, PointersOfAnAuditLeadToTheNames) {
    const std::string document = Example("pump-flange-bracket.json");
    const auto text = nlohmann::json::parse(ReadFile(document));
    const auto audit = nlohmann::json::parse(RunWith({"audit", document, "--json"}).out);
    for (const auto& refusal : audit["refusals"]) {
        const nlohmann::json::json_pointer pointer(refusal["pointer"].get<std::string>());
        EXPECT_EQ(text.at(pointer).at("name"), refusal["name"]);
    }
}

} // namespace
