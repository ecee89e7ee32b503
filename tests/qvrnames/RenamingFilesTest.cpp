#include "TestSupport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

TEST(RenamingFiles, ChangesTheBytesOfOneName) {
    const struct {
        const char* text;
        const char* feature;
        const char* name;
        const char* expected;
    } rows[] = {
        {R"({"cases":[{"name":"A","steps":[{"name" : "\u0053tep\/1" , "type":"S"}]}]})", "Step/1", "Last",
         R"({"cases":[{"name":"A","steps":[{"name" : "Last" , "type":"S"}]}]})"},
        {"\xEF\xBB\xBF{\r\n\t\"cases\": [ { \"name\": \"A\", \"comment\": \"\\\"name\\\": \\\"A\\\"\" } ] }\r\n\r\n",
         "A", "B",
         "\xEF\xBB\xBF{\r\n\t\"cases\": [ { \"name\": \"B\", \"comment\": \"\\\"name\\\": \\\"A\\\"\" } ] }\r\n\r\n"},
        {R"({"cases": [{ "id": "a" }]})", "a", "A", R"({"cases": [{ "name": "A", "id": "a" }]})"},
        {R"({"cases": [{ }]})", "/cases/0", "A", R"({"cases": [{"name": "A" }]})"},
        {R"({"cases": [{"name": "A"}]})", "A", "\"\\\t温", R"({"cases": [{"name": "\"\\\t温"}]})"},
        // this type of step removes spaces and underscores at the ends
        {R"({"cases": [{"steps": [{"type": "QVRStaticLPStepLT", "name": "A"}]}]})", "A", " _B c_ ",
         R"({"cases": [{"steps": [{"type": "QVRStaticLPStepLT", "name": "B c"}]}]})"},
    };
    const TestFolder folder;
    for (const auto& row : rows) {
        const std::string file = folder.Write("document.json", row.text);
        const RunResult result = RunWith({"rename", file, row.feature, row.name});
        EXPECT_EQ(result.code, 0) << result.err;
        EXPECT_EQ(ReadFile(file), row.expected);
    }
    EXPECT_EQ(folder.Files(), 1U) << "a temporary file was left";
}

TEST(RenamingFiles, ReportsARefusalAndLeavesTheFile) {
    const TestFolder folder;
    const std::string text = ReadFile(Example("pump-flange-bracket.json"));
    const std::string file = folder.Write("document.json", text);
    const std::string output = folder.Path("other.json");
    const struct {
        const char* feature;
        const char* name;
        const char* messageId;
        bool isPrinted; // the naming module prints nothing if no error is registered
    } rows[] = {
        {"Static/Vorspannen", " Betriebsdruck_ ", "DuplicateNameERR_01", true},
        {"Static/Vorspannen", "", "NameLengthERR_02", true},
        {"Static/Vorspannen", "1. Schritt", "LeadingDigitERR_01", true},
        {"Static/betriebsdruck", "betriebsdruck", "DuplicateNameERR_01", true}, // the current name
        {"Thermal and Shock/flange static", "JOB-1", "DuplicateNameERR_02", true},
        {"Imported/Job-1", "Job-2", "", false},
        {"/cases/1/steps/2/sets/2/features/1", "x", "", false}, // without ZFXIAlias
    };
    for (const auto& row : rows) {
        const RunResult result = RunWith({"rename", file, row.feature, row.name, "--json", "--output", output});
        EXPECT_EQ(result.code, 1) << row.feature;
        const auto json = nlohmann::json::parse(result.out); // standard output contains only the JSON value
        EXPECT_EQ(json["renamed"], false);
        EXPECT_EQ(json["messageId"], row.messageId) << result.out;
        EXPECT_NE(json["message"], "");
        EXPECT_EQ(json["printed"].get<std::string>().starts_with("NAME ERROR: "), row.isPrinted) << result.out;
        EXPECT_FALSE(std::filesystem::exists(Utf8::ToPath(output)));

        const RunResult shown = RunWith({"rename", file, row.feature, row.name});
        EXPECT_EQ(shown.code, 1);
        EXPECT_EQ(shown.out.starts_with("NAME ERROR: "), row.isPrinted) << shown.out;
        EXPECT_NE(shown.out.find(": refused"), std::string::npos) << shown.out;
    }
    EXPECT_EQ(ReadFile(file), text);
}

TEST(RenamingFiles, ReportsANameThatIsStoredWithoutACheck) {
    const TestFolder folder;
    const std::string file = folder.Write("document.json", ReadFile(Example("propose-a-pressure.json")));
    const RunResult result = RunWith({"rename", file, "new-load", "Pressure-1"});
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.out.find("\"\" -> \"Pressure-1\""), std::string::npos) << result.out;
    EXPECT_NE(result.out.find("accept any name; an audit refuses it: DuplicateNameERR_02"), std::string::npos)
        << result.out;
}

} // namespace
