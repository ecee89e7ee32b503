#include "TestSupport.h"

#include <tuple>

namespace {

TEST(RenamingFiles, ChangesTheBytesOfOneName) {
    // The document, the feature, the new name and the changed document.
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {R"({"cases":[{"name":"A","steps":[{"name" : "\u0053tep\/1" , "type":"S"}]}]})", "Step/1", "Last",
         R"({"cases":[{"name":"A","steps":[{"name" : "Last" , "type":"S"}]}]})"},
        {"\xEF\xBB\xBF{\r\n\t\"cases\": [ { \"name\": \"A\", \"comment\": \"\\\"name\\\": \\\"A\\\"\" } ] }\r\n\r\n",
         "A", "B",
         "\xEF\xBB\xBF{\r\n\t\"cases\": [ { \"name\": \"B\", \"comment\": \"\\\"name\\\": \\\"A\\\"\" } ] }\r\n\r\n"},
        {R"({"cases": [{ "id": "a" }]})", "a", "A", R"({"cases": [{ "name": "A", "id": "a" }]})"},
        {R"({"cases": [{ }]})", "/cases/0", "A", R"({"cases": [{"name": "A" }]})"},
        {R"({"cases": [{"name": "A"}]})", "A", "\"\\\t温", R"({"cases": [{"name": "\"\\\t温"}]})"},
        {R"({"cases": [{"steps": [{"type": "QVRStaticLPStepLT", "name": "A"}]}]})", "A", " _B c_ ",
         R"({"cases": [{"steps": [{"type": "QVRStaticLPStepLT", "name": "B c"}]}]})"},
        {R"({"sets": [{"type": "S", "features": [{"type": "S", "name": "a"}, {"type": "QVRSpringLT"}]}]})",
         "/sets/0/features/1", "__ a __",
         R"({"sets": [{"type": "S", "features": [{"type": "S", "name": "a"}, {)"
         R"("name": " a ", "type": "QVRSpringLT"}]}]})"},
    };
    const TestFolder folder;
    for (const auto& [text, feature, name, expected] : rows) {
        const std::string file = folder.Write("document.json", text);
        const std::vector<std::string> arguments{"rename", file, feature, name, "--force"};
        RunResult result{};
        const std::string stray = CapturedOutput([&] { result = RunWith(arguments); });
        EXPECT_EQ(stray, "") << "the library printed a refusal";
        EXPECT_EQ(result.code, 0) << result.err;
        EXPECT_EQ(ReadFile(file), expected);
    }
    EXPECT_EQ(folder.Files(), 1U) << "a temporary file was left";
}

TEST(RenamingFiles, LeavesTheFilesIfTheNameIsRefused) {
    const TestFolder folder;
    const std::string text = ReadFile(Example("rename-a-step.json"));
    const std::string file = folder.Write("document.json", text);
    EXPECT_EQ(RunWith({"rename", file, "Perturbation", "step"}).code, 1);
    EXPECT_EQ(RunWith({"rename", file, "Perturbation", "step", "--output", folder.Path("other.json")}).code, 1);
    EXPECT_EQ(ReadFile(file), text);
    EXPECT_EQ(folder.Files(), 1U);
}

} // namespace
