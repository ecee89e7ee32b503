#include "BadInput.h"
#include "TestSupport.h"
#include "document/LoadedDocument.h"

#include "analysis/WorkbenchUtilities.h"

#include <nlohmann/json.hpp>

#include <random>
#include <regex>

namespace {

std::string ErrorOf(const std::string& text) {
    try {
        const LoadedDocument loaded(text);
    } catch (const BadInput& error) {
        return error.what();
    }
    return "no error";
}

/// Compares the errors of bad-documents.json ("no error" for a document that is not bad). To regenerate that file, run
/// qvrnames-tests with QVR_WRITE_EXPECTED=1 and examine the difference.
TEST(DocumentReader, ReportsTheFirstErrorWithItsPosition) {
    const std::string path = TRANSCRIPTS_FOLDER "/../bad-documents.json";
    auto documents = nlohmann::ordered_json::parse(ReadFile(path));
    for (auto& document : documents) {
        const std::string error = ErrorOf(document["text"]);
        EXPECT_EQ(error, document["error"]) << document["text"];
        document["error"] = error;
    }
    WriteIfRequested(path, documents.dump(1) + "\n");
    EXPECT_EQ(ErrorOf(std::string(1'000'000, '[')), "line 1, column 101: nested more deeply than 100 levels");
    EXPECT_EQ(ErrorOf("{\"comment\": \"\xC3\x28\"}"),
              "line 1, column 15: the text is not JSON: invalid string: ill-formed UTF-8 byte");
}

TEST(DocumentReader, ReportsEveryDamagedFileAsBadInput) {
    const std::string text = ReadFile(Example("pump-flange-bracket.json"));
    ASSERT_EQ(ErrorOf(text), "no error");
    std::mt19937 random(7);
    const std::string marks = "{}[]\",:\\ \n0e-tfn\xC3\xE3";
    const std::regex hasPosition(R"(no error|the file is empty; .*|(/.* \()?line \d+, column \d+\)?: [^\n]*)");
    for (int i = 0; i < 400; ++i) {
        std::string bad = text;
        for (int change = 0; change < 3; ++change)
            bad[random() % bad.size()] = marks[random() % marks.size()];
        const std::string error = ErrorOf(i % 2 == 0 ? bad : bad.substr(0, random() % bad.size()));
        EXPECT_TRUE(std::regex_match(error, hasPosition)) << error;
        EXPECT_EQ(error.find("json.exception"), std::string::npos) << error;
        EXPECT_EQ(error.find("last read"), std::string::npos) << error;
    }
    EXPECT_EQ(MemoryModel::LiveObjects(), 0);
}

TEST(DocumentReader, AppliesTheKeysWhoseEffectNoTranscriptShows) {
    const LoadedDocument loaded(R"({
        "materials": [{"id": "alu", "name": "Alu"}],
        "propertySet": {"features": [{"type": "SAMShell", "id": "shell", "property": false}]},
        "cases": [
            {"id": "other case", "solverCase": false},
            {"steps": [{"type": "S", "id": "step", "attributes": {"FileLink": "a.inp"},
                        "sets": [{"type": "L", "id": "loads", "features": [
                            {"type": "P", "id": "load", "propagated": true, "amplitude": true, "father": null}]}]}]}],
        "sets": [{"type": "L", "id": "more", "holds": ["load"], "offers": ["QVRIStep"], "pointedAtBy": ["step"]}]
    })");
    const auto object = [&](const char* id) { return loaded.entries[loaded.ids.at(id)].feature; };
    EXPECT_EQ(ZFXISpecObject_var(object("load"))->GetFather(), nullptr);
    EXPECT_EQ(ZFXISpecObject_var(object("more"))->ListPointingAttributes("ZFXISpecObject", "", "")->Size(), 1);
    ZFXListValZFXBaseUnknown_var* sets = nullptr;
    ZFXISamAnalysisEntity_var(object("load"))->GetParentSets(sets);
    const std::unique_ptr<ZFXListValZFXBaseUnknown_var> owned(sets);
    ASSERT_EQ(owned->Size(), 2);
    EXPECT_TRUE((*owned)[1] == object("loads").Object());
    EXPECT_TRUE((*owned)[2] == object("more").Object());
    ZFXISpecObject_var shell = object("shell");
    EXPECT_FALSE(QVRAnalysisEntityUtils::IsObjectAProperty(shell));
    ZFXISpecObject_var load = object("load");
    EXPECT_TRUE(QVRAnalysisEntityUtils::IsObjectAnAmplitude(load));
    EXPECT_NE(QVRIStep_var(object("more")), nullptr);
    EXPECT_NE(QVRIPropagatingFeature_var(object("load"))->IsPropagated(), 0);
    ZFXISamAnalysisCase_var otherCase = object("other case");
    EXPECT_FALSE(QVRAnalysisDocUtils::IsTarnisAnalysisCase(otherCase));
    EXPECT_EQ(ZFXIMaterialFeature_var(object("alu"))->GetMaterialFeatureName(), "Alu");
    const ZFXISpecAttrAccess_var attributes = object("step");
    const auto key = ZFXISpecAttrKey_var::Attach(attributes->GetAttrKey("FileLink"));
    EXPECT_EQ(attributes->GetString(key, 0), "a.inp");
}

TEST(DocumentReader, MakesTheFirstCaseCurrentByDefault) {
    const std::pair<const char*, const char*> rows[] = {
        {R"([{"name": "A"}, {"name": "B"}])", "A"},
        {R"([{"name": "A"}, {"name": "B", "current": true}])", "B"},
        {R"([{"name": "A"}, {"name": "B", "current": false}])", "A"},
        {R"([{"name": "A", "current": false}, {"name": "B"}])", ""},
    };
    for (const auto& [cases, expected] : rows) {
        const LoadedDocument loaded(std::string("{\"cases\": ") + cases + "}");
        ZFXISamAnalysisCase_var current;
        QVRStepUtils::GetCurrentAnalysisCaseSP(current, nullptr);
        const ZFXIAlias_var alias(current);
        EXPECT_STREQ(alias == nullptr ? "" : alias->GetAlias().ConvertToChar(), expected) << cases;
    }
}

} // namespace
