#include "TestSupport.h"

#include <nlohmann/json.hpp>

#include <map>
#include <random>
#include <set>

namespace {

using nlohmann::json;

const std::vector<std::string> kNames{"A-1", "A-02", "A- 3", "A",      "a",           "A-2147483647", "Pressure-1",
                                      "1A",  "7",    "A.1",  ".",      "\"",          "\"2\"",        "A\\b",
                                      "",    " ",    "_1",   "\u6E29", "Q\U0001F600", "\u00C4",       "QVRPressure-1"};
const std::vector<std::string> kLongNames{std::string(72, 'x'), std::string(73, 'x'), std::string(70, 'x') + "-1"};

/// Builds small documents in which most names break a rule or clash.
class RandomDocument {
public:
    /// @param isHard  true if some names cannot be fixed because of their types or because of other objects
    RandomDocument(unsigned seed, bool isHard) : m_engine(seed), m_isHard(isHard) {}

    json Build() {
        json document = Object("");
        document.erase("name");
        document["meshManager"] = Object("meshManager");
        document["propertySet"] = Object("propertySet");
        return document;
    }

private:
    struct Kind {
        std::vector<std::string> types;                         ///< empty: the default type
        std::vector<std::pair<std::string, std::size_t>> lists; ///< each with its maximum size
    };

    std::size_t Below(std::size_t count) { return m_engine() % count; }
    bool Chance(std::size_t oneIn) { return Below(oneIn) == 0; }
    const std::string& OneOf(const std::vector<std::string>& texts) { return texts[Below(texts.size())]; }
    /// Returns a name that often clashes with others, or differs from them only in its number.
    std::string NumberedName() { return "BbCcDdEe"[Below(8)] + OneOf({"-1", "-2"}); }
    /// @param key  the key that leads to the object; empty for the document
    json Object(const std::string& key) {
        json object = json::object();
        const Kind& kind = m_kinds[key];
        if (!kind.types.empty())
            object["type"] = OneOf(m_isHard && Chance(10) ? std::vector<std::string>{"9LT", "\u6E29"} : kind.types);
        if (!Chance(12))
            object["name"] = Chance(2) ? NumberedName() : OneOf(Chance(8) ? kLongNames : kNames);
        if (m_isHard && Chance(40))
            object["withholds"] = {
                OneOf({"ZFXIAlias", "QVRIPropagatingFeature", "ZFXISpecAttrAccess", "ZFXISamAnalysisScan"})};
        if (key == "features" && Chance(6))
            object["propagated"] = true;
        if (key == "features" && Chance(8))
            object["id"] = m_ids.emplace_back("f" + std::to_string(m_ids.size()));
        if (key == "sets" && !m_ids.empty() && Chance(2)) // a member of two sets: it is compared only in the first
            object["holds"] = {m_ids.front()};
        for (const auto& [child, count] : kind.lists) {
            json& list = object[child] = json::array();
            for (std::size_t size = Below(count + 1); list.size() < size;)
                list.push_back(Object(child));
        }
        return object;
    }

    std::mt19937 m_engine;
    bool m_isHard;
    std::vector<std::string> m_ids;
    std::map<std::string, Kind> m_kinds{
        {"", {{}, {{"cases", 3}, {"materials", 3}, {"sets", 1}}}},
        {"meshManager", {{}, {{"meshParts", 4}}}},
        {"propertySet", {{}, {{"features", 5}}}},
        {"cases", {{}, {{"steps", 4}, {"jobs", 4}, {"jobContainers", 1}}}},
        {"jobContainers", {{}, {{"jobs", 3}}}},
        {"steps", {{"QVRGeneralStaticStepLT", "QVRFrequencyStepLT"}, {{"sets", 3}}}},
        {"sets", {{"QVRLoadsLT", "QVRBCsLT"}, {{"features", 5}}}},
        {"features",
         {{"QVRPressure", "QVRGravity", "QVRShellSectionEnhLT", "SAMBoltTightening", "QVRInitialTemperatureLT",
           "QVRLayupLT"},
          {}}},
    };
};

std::set<std::string> PointersIn(const json& findings) {
    std::set<std::string> pointers;
    for (const json& finding : findings)
        pointers.insert(finding["pointer"].get<std::string>());
    return pointers;
}

json::json_pointer NameAt(const std::string& pointer) { return json::json_pointer(pointer + "/name"); }

TEST(Fix, LeavesLegalNamesAndOnlyTheListedFindings) {
    const TestFolder folder;
    for (unsigned seed = 1; seed <= 100; ++seed) {
        const bool isHard = seed % 2 == 0;
        SCOPED_TRACE("seed " + std::to_string(seed));
        const json document = RandomDocument(seed, isHard).Build();
        const std::string file = folder.Write("document.json", document.dump(1));
        const auto run = [&](std::vector<std::string> arguments) {
            arguments.insert(arguments.begin() + 1, {file, "--json"});
            const RunResult result = RunWith(arguments);
            EXPECT_NE(result.code, 2) << result.err;
            return std::pair(result.code, json::parse(result.out));
        };
        const auto audit = [&] { return run({"audit"}).second["documents"][0]["refusals"]; };
        const json refusals = audit();
        const std::set<std::string> refused = PointersIn(refusals);
        const auto [previewCode, preview] = run({"fix"});
        EXPECT_EQ(previewCode, refused.empty() ? 0 : 1);
        EXPECT_EQ(ReadFile(file), document.dump(1));
        const auto [code, fix] = run({"fix", "--write"});
        EXPECT_EQ(code, fix["left"].empty() ? 0 : 1);
        EXPECT_EQ(fix["fixed"], preview["fixed"]);
        const std::string text = ReadFile(file);
        json expected = document;
        for (const json& change : fix["fixed"]) {
            EXPECT_TRUE(refused.contains(change["pointer"])) << "a legal name was changed: " << change;
            expected[NameAt(change["pointer"])] = change["name"];
        }
        ASSERT_EQ(text, expected.dump(1));
        const std::set<std::string> remaining = PointersIn(audit());
        EXPECT_EQ(remaining, PointersIn(fix["left"])) << text;
        const json again = run({"fix", "--write"}).second;
        EXPECT_EQ(again["fixed"], json::array());
        EXPECT_EQ(PointersIn(again["left"]), remaining);
        EXPECT_EQ(ReadFile(file), text);
        // A name that only clashes changes only if it is refused together with the names that are accepted, left or
        // before it. The names after it are replaced by unique ones.
        json earlier = document;
        for (int unique = 0; const std::string& pointer : refused)
            if (!remaining.contains(pointer))
                earlier[NameAt(pointer)] = "Z" + std::to_string(++unique);
        std::set<std::string> done = remaining;
        for (const json& refusal : refusals)
            if (!refusal.contains("other")) // a rule about its text is broken
                done.insert(refusal["pointer"]);
        const std::set<std::string> changed = PointersIn(fix["fixed"]);
        for (const json& refusal : refusals) {
            const std::string pointer = refusal["pointer"];
            if (!done.insert(pointer).second)
                continue;
            earlier[NameAt(pointer)] = document[NameAt(pointer)];
            if (!changed.contains(pointer))
                continue;
            folder.Write("document.json", earlier.dump());
            EXPECT_NE(audit().dump().find('"' + pointer + '"'), std::string::npos) << pointer << " can stay";
        }
        for (const json& name : fix["left"])
            EXPECT_TRUE(isHard ||
                        name["reasonLeft"] ==
                            "Nothing legal remains of the name, and the type of the feature has no base name.")
                << name;
    }
}

TEST(Fix, ChangesOnlyTheBytesOfTheNames) {
    const TestFolder folder;
    const std::string file = folder.Write(
        "document.json", "\xEF\xBB\xBF{\"cases\":[ {\r\n\t\"name\" :\"\\u0041\\\\\" , \"comment\":\"\\u0041.\"},"
                         "{\"name\":\"a.\"}, {\"name\":\"\\u0042\"} ] }\n");
    EXPECT_EQ(RunWith({"fix", file, "--write"}).code, 0);
    EXPECT_EQ(ReadFile(file), "\xEF\xBB\xBF{\"cases\":[ {\r\n\t\"name\" :\"A/\" , \"comment\":\"\\u0041.\"},"
                              "{\"name\":\"a-\"}, {\"name\":\"\\u0042\"} ] }\n");
}

} // namespace
