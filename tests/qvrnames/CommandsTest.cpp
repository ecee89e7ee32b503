#include "TestSupport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <set>

namespace {

TEST(Commands, EndWithTwoAndOneLineForWhatCannotBeUsed) {
    const TestFolder folder;
    const std::string empty = folder.Write("empty.json", "");
    const std::string large = folder.Write("large.json", "");
    std::filesystem::resize_file(Utf8::ToPath(large), (std::uintmax_t{256} << 20) + 1);
    const std::string folderPath = folder.Path(".");
    const std::string step = Example("rename-a-step.json");
    const std::string load = Example("propose-a-pressure.json");
    const std::string pump = Example("pump-flange-bracket.json");
    const struct {
        std::vector<std::string> arguments;
        std::string expected;
    } rows[] = {
        {{}, "A subcommand is required"},
        {{"adit", "--deck", step}, "there is no command \"adit\"; did you mean \"audit\"?"},
        {{"audit", "--dekc", step}, "there is no option --dekc; did you mean \"--deck\"?"},
        {{"audit", "--lang=de", step}, "there is no option --lang; did you mean \"--language\"?"},
        {{"--language", "xx", "audit", step}, "there are no messages in \"xx\"; there are: de, en, fr, ja"},
        {{"audit", step, "--color", "red"}, "--color: red not in {auto,always,never}"},
        {{"audit"}, "DOCUMENT is required"},
        {{"audit", step, "more"}, "not expected: more"},
        {{"check"}, "NAME"},
        {{"check", "\xFF"}, "an argument is no UTF-8 text"},
        {{"audit", "/no/such.json"}, "/no/such.json: cannot be read: No such file or directory"},
        {{"audit", folderPath}, folderPath + ": cannot be read: Is a directory"},
        {{"audit", empty}, empty + ": the file is empty"},
        {{"audit", large}, large + ": larger than 256 MB"},
        {{"propose", load, "Step-1"}, "late type \"QVRGeneralStaticStepLT\", which has no base name"},
        {{"propose", pump, "Flange Static", "--base", "Flange-"}, "jobs are numbered after \"Job-\" alone"},
        {{"propose", load}, "FEATURE is required"},
        {{"propose", load, "x", "--job"}, "leave FEATURE and --base out"},
        {{"rename", step, "Step-9", "x"}, step + ": no feature has the id, the path"},
        {{"rename", step, "step", "x", "--output", "/no/such/folder/x"}, "/no/such/folder/x: cannot be written"},
        {{"rename", step, "step", "x", "--output", folderPath}, folderPath + ": cannot be written: not a regular file"},
    };
    for (const auto& row : rows) {
        const RunResult result = RunWith(row.arguments);
        EXPECT_EQ(result.code, 2) << row.expected;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err.find("qvrnames: "), 0U) << result.err;
        EXPECT_NE(result.err.find(row.expected), std::string::npos) << result.err;
    }
}

TEST(Commands, HelpWithAnExample) {
    for (const char* command : {"check", "audit", "deck", "propose", "rename"}) {
        const RunResult result = RunWith({command, "--help"});
        EXPECT_EQ(result.code, 0);
        EXPECT_NE(result.out.find(std::string("Example: qvrnames ") + command), std::string::npos) << result.out;
    }
}

TEST(Commands, CheckNamesByTheirText) {
    const std::string longest(72, 'x');
    const struct {
        std::vector<std::string> arguments;
        const char* messageId; // empty: legal
        // clang-format off
    } rows[] = {
        {{"Step 1"}, ""}, {{"Schweißnaht"}, ""}, {{longest}, ""}, {{longest + "x"}, "NameLengthERR_01"},
        {{""}, "NameLengthERR_02"}, {{"1 Step"}, "LeadingDigitERR_01"}, {{"Step.1"}, "IllegalCharERR_01"},
        {{"衝撃"}, "DoubleByteCharErr_01"}, {{"--file-name", "a\\b"}, ""}, {{"--file-name", "a b"}, "IllegalCharERR_02"},
        {{"--file-name", "a.b"}, "IllegalCharERR_01"},
    };
    // clang-format on
    for (const auto& row : rows) {
        std::vector<std::string> arguments{"check", "--json"};
        arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
        const RunResult result = RunWith(arguments);
        const auto said = nlohmann::json::parse(result.out);
        const bool isLegal = *row.messageId == '\0';
        EXPECT_EQ(result.code, isLegal ? 0 : 1) << row.arguments.back();
        EXPECT_EQ(said["legal"], isLegal);
        EXPECT_EQ(said["names"][0].value("messageId", ""), row.messageId) << row.arguments.back();
        EXPECT_EQ(said["names"][0].value("message", "").empty(), isLegal);
    }
    const RunResult result = RunWith({"check", "a\x1B[2J", "1"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out.find("a\\u001B[2J  legal\n1           refused  LeadingDigitERR_01  The name"), 0U)
        << result.out;
    EXPECT_NE(RunWith({"--language", "de_AT", "check", "1"}).out.find("ERR_01  Der Name beginnt"), std::string::npos);
    EXPECT_NE(RunWith({"check", "1"}).out.find("ERR_01  The name begins"), std::string::npos) << "not for the next run";
}

TEST(Commands, AuditTheWholeExample) {
    const std::string document = Example("pump-flange-bracket.json");
    const RunResult result = RunWith({"audit", document, "--json"});
    EXPECT_EQ(result.code, 1);
    const auto said = nlohmann::json::parse(result.out);
    std::set<std::string> ids;
    std::set<std::string> refused;
    for (const auto& refusal : said["refusals"]) {
        ids.insert(refusal["messageId"]);
        refused.insert(refusal["feature"]);
        const auto text = nlohmann::json::parse(ReadFile(document));
        const auto pointer = nlohmann::json::json_pointer(refusal["pointer"].get<std::string>());
        EXPECT_EQ(text.at(pointer).at("name"), refusal["name"]);
    }
    // clang-format off
    const std::set<std::string> everyKind{
        "", "AnalysisCaseERR_03", "DoubleByteCharErr_01", "DuplicateNameERR_01", "DuplicateNameERR_02",
        "DuplicateNameERR_03", "DuplicateZFXNameERR_01", "IllegalCharERR_01", "LeadingDigitERR_01",
        "NameLengthERR_01", "NameLengthERR_02", "ObjectParentERR_01", "StepParentERR_01", "StepParentERR_02",
        "ZFXIAliasERR_01"};
    // clang-format on
    EXPECT_EQ(ids, everyKind);
    for (const char* legal : {"3mm Blech", "Static", "Static/Initial/Schweißnaht", "Reibung 0,12"})
        EXPECT_FALSE(refused.contains(legal)) << legal;
    for (const char* refusedOne :
         {"Static/Job-1", "Static/Betriebsdruck", "Thermal and Shock/flange static", "m12 OBEN"})
        EXPECT_TRUE(refused.contains(refusedOne)) << refusedOne;

    const RunResult table = RunWith({"audit", document});
    const std::string closing = std::to_string(said["featuresChecked"].get<int>()) + " features checked, " +
                                std::to_string(said["refusals"].size()) + " refusals\n";
    EXPECT_TRUE(table.out.ends_with("\n\n" + closing)) << table.out;
    EXPECT_EQ(RunWith({"audit", Example("rename-a-step.json")}).code, 0);
}

TEST(Commands, ShowWhatTheDeckCallsEverything) {
    const std::string document = Example("pump-flange-bracket.json");
    for (int run = 0; run < 2; ++run) { // each on fresh caches
        const RunResult result = RunWith({"deck", document, "--json"});
        EXPECT_EQ(result.code, 0);
        const auto deck = nlohmann::json::parse(result.out);
        const auto row = [&](const char* section, const std::string& feature) {
            for (auto said : deck[section])
                if (said["feature"] == feature) {
                    said.erase("feature");
                    said.erase("pointer");
                    return said.dump();
                }
            return std::string("none");
        };
        EXPECT_EQ(row("features", "M12.unten"),
                  R"({"displayName":"M12.unten","genericName":"SAMVirtBoltTightening-1","solverName":"M12-unten"})");
        EXPECT_EQ(row("features", "Thermal and Shock/衝撃"),
                  R"({"displayName":"衝撃","genericName":"QVRExplicitDynamicStepLT-1","solverName":"衝撃"})");
        EXPECT_EQ(row("meshParts", "__Bolt_ _"),
                  R"({"displayName":"__Bolt_ _","instanceName":"Instance5-Bolt","partName":"Part5-Bolt","tag":"5"})");
        EXPECT_EQ(
            row("meshParts", "OrphanMesh-Housing.1"),
            R"({"displayName":"OrphanMesh-Housing.1","instanceName":"Housing.1","partName":"Housing.1","tag":null})");
        EXPECT_EQ(
            row("features", "Thermal and Shock/衝撃/Data Output Request-2"), // one without a name before it
            R"({"displayName":"Data Output Request-2","genericName":"QVRDatOutputLT-3","solverName":"Data Output Request-2"})");
        EXPECT_EQ(row("materials", "Acier d'origine"),
                  R"({"displayName":"Acier d'origine","genericName":"SAMUserMaterial-2","materialName":"Steel-1"})");
        EXPECT_EQ(row("supports", "Foot Support"), R"({"displayName":"Foot Support","group":null})");
        EXPECT_EQ(row("connectionDesigns", "Flange Joint"),
                  R"({"displayName":"Flange Joint","masterGroup":"Bolt-Top","slaveGroup":"Fuß links"})");
        EXPECT_EQ(deck["jobs"].size(), 4U);
    }
    const auto audit = nlohmann::json::parse(RunWith({"audit", document, "--deck", "--json"}).out);
    auto findings = audit["refusals"];
    findings.insert(findings.end(), audit["deckFaults"].begin(), audit["deckFaults"].end());
    const auto said = [&](const char* feature, const char* deckColumn, const std::string& words) {
        return std::any_of(findings.begin(), findings.end(), [&](const auto& finding) {
            return finding["feature"] == feature && finding.value("deck", "") == deckColumn &&
                   (finding["messageId"] == words ||
                    finding["message"].template get<std::string>().find(words) != std::string::npos);
        });
    };
    EXPECT_TRUE(said("Thermal and Shock/衝撃", "SOLVER NAME", "DoubleByteCharErr_01")); // let through for a "QVR" type
    EXPECT_TRUE(said("OrphanMesh-Housing.1", "INSTANCE", "IllegalCharERR_01"));
    EXPECT_TRUE(said("Static/betriebsdruck", "SOLVER NAME", "gives this name to Static/Betriebsdruck as well"));
    EXPECT_TRUE(said("Thermal and Shock/flange static", "", "DuplicateNameERR_03"));
    EXPECT_TRUE(said("m12 OBEN", "", "DuplicateZFXNameERR_01"));
    EXPECT_FALSE(said("Acier d'origine", "NAME", "as well"));
    EXPECT_FALSE(said("Thermal and Shock/Initial", "SOLVER NAME", "as well")); // the deck of another case
    EXPECT_EQ(RunWith({"propose", document, "--job"}).out, "base name       Job-\nnext free name  Job-2\n");
}

TEST(Commands, ProposeTheNextFreeName) {
    const TestFolder folder;
    const std::string cases =
        folder.Write("cases.json", R"({"meshManager": {"meshParts": [{"name": "Mesh-4"}]}, "cases": [
        {"name": "A", "steps": [{"type": "S", "sets": [{"type": "L", "features": [
            {"type": "QVRGravity", "name": "Gravity-1"}]}]}]},
        {"name": "B", "steps": [{"type": "S", "sets": [{"type": "L", "features": [
            {"type": "QVRGravity", "name": "Gravity-7"}, {"type": "QVRGravity", "id": "new"}]}]}]},
        {"name": "C", "history": null, "sets": [{"type": "L", "features": [{"type": "QVRGravity", "id": "lost"}]}]}
        ]})");
    const std::string load = Example("propose-a-pressure.json");
    const std::string pump = Example("pump-flange-bracket.json");
    const struct {
        std::vector<std::string> arguments;
        int code;
        const char* base;
        const char* proposal;
    } rows[] = {
        {{load, "new-load"}, 0, "Pressure-", "Pressure-3"},
        {{load, "new-load", "--base", "Last-"}, 0, "Last-", "Last-1"},
        {{load, "Step-1", "--base", "Step-"}, 0, "Step-", "Step-3"},
        {{cases, "new"}, 0, "Gravity-", "Gravity-8"},                 // in its own case, not in the current one
        {{pump, "Flange Static"}, 0, "Job-", "Job-2"},                // over all cases
        {{cases, "Mesh-4", "--base", "Mesh-"}, 0, "Mesh-", "Mesh-5"}, // over the mesh manager
        {{cases, "lost"}, 1, "Gravity-", nullptr},
    };
    for (const auto& row : rows) {
        std::vector<std::string> arguments{"propose", "--json"};
        arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
        const RunResult result = RunWith(arguments);
        const auto said = nlohmann::json::parse(result.out);
        EXPECT_EQ(result.code, row.code) << result.out;
        EXPECT_EQ(said["base"], row.base);
        EXPECT_EQ(said["proposal"], row.proposal == nullptr ? nlohmann::json() : nlohmann::json(row.proposal));
    }
    EXPECT_NE(RunWith({"propose", load, "new-load"}).out.find("next free name  Pressure-3\n"), std::string::npos);
}

} // namespace
