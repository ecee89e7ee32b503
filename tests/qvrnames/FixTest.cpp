#include "TestSupport.h"

#include <nlohmann/json.hpp>

#include <random>
#include <set>
#include <tuple>

namespace {

using nlohmann::json;

/// Builds small documents in which most names break a rule or clash.
class RandomDocument {
public:
    /// @param isHard  true if some names cannot be fixed because of their types or because of other objects
    RandomDocument(unsigned seed, bool isHard) : m_engine(seed), m_isHard(isHard) {}

    json Build() {
        json document{{"propertySet", Named({{"features", List(5, [this] { return Feature(false); })}})},
                      {"meshManager", {{"meshParts", List(4, [this] { return Named(); })}}},
                      {"materials", List(3, [this] { return Named(); })},
                      {"cases", List(3, [this] { return Case(); })}};
        if (!m_ids.empty() && Chance(2)) // a member of two sets: it is compared only in the first
            document["sets"] = {{{"type", "QVRGroupsLT"},
                                 {"features", List(3, [this] { return Feature(false); })},
                                 {"holds", {m_ids.front()}}}};
        return document;
    }

private:
    std::size_t Below(std::size_t count) { return m_engine() % count; }
    bool Chance(std::size_t oneIn) { return Below(oneIn) == 0; }
    const std::string& OneOf(const std::vector<std::string>& texts) { return texts[Below(texts.size())]; }

    template <class Make>
    json List(std::size_t count, Make make) {
        json list = json::array();
        for (std::size_t size = Below(count + 1); list.size() < size;)
            list.push_back(make());
        return list;
    }
    json Named(json object = json::object()) {
        const std::string longest(72, 'x');
        if (!Chance(12))
            object["name"] = OneOf({"A-1",
                                    "a-1",
                                    "A-2",
                                    "A-02",
                                    "A- 3",
                                    "A",
                                    "a",
                                    "A-2147483647",
                                    "Pressure-1",
                                    "1A",
                                    "7",
                                    "A.1",
                                    ".",
                                    "\"",
                                    "\"2\"",
                                    "A\\b",
                                    "",
                                    " ",
                                    "_1",
                                    "\u6E29",
                                    "Q\U0001F600",
                                    "\u00C4",
                                    "QVRPressure-1",
                                    longest,
                                    longest + "1",
                                    longest.substr(0, 70) + "-1"});
        return object;
    }
    json Feature(bool isInStep) {
        json feature = Named({{"type", OneOf({"QVRPressure", "QVRGravity", "QVRShellSectionEnhLT", "SAMBoltTightening",
                                              "QVRInitialTemperatureLT", "QVRLayupLT", m_isHard ? "9LT" : "QVRClamp",
                                              m_isHard ? "\u6E29" : "QVRSpringLT"})}});
        if (isInStep && Chance(6))
            feature["propagated"] = true;
        if (m_isHard && Chance(20))
            feature["withholds"] = {OneOf({"ZFXIAlias", "QVRIPropagatingFeature", "ZFXISpecAttrAccess"})};
        if (Chance(8))
            feature["id"] = m_ids.emplace_back("f" + std::to_string(m_ids.size()));
        return feature;
    }
    json Step() {
        const auto makeSet = [this] {
            return Named(
                {{"type", OneOf({"QVRLoadsLT", "QVRBCsLT"})}, {"features", List(5, [this] { return Feature(true); })}});
        };
        return Named({{"type", OneOf({"QVRGeneralStaticStepLT", "QVRFrequencyStepLT"})}, {"sets", List(3, makeSet)}});
    }
    json Case() {
        const auto makeJob = [this] { return Named(); };
        json result = Named({{"steps", List(4, [this] { return Step(); })}, {"jobs", List(4, makeJob)}});
        if (Chance(3))
            result["jobContainers"] = {{{"jobs", List(3, makeJob)}}};
        if (m_isHard && Chance(10))
            result["history"] = {{"withholds", {"ZFXISamAnalysisScan"}}};
        return result;
    }

    std::mt19937 m_engine;
    bool m_isHard;
    std::vector<std::string> m_ids;
};

std::set<std::string> PointersIn(const json& findings) {
    std::set<std::string> pointers;
    for (const json& finding : findings)
        pointers.insert(finding["pointer"].get<std::string>());
    return pointers;
}

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
        const auto audit = [&] { return PointersIn(run({"audit"}).second["documents"][0]["refusals"]); };
        const std::set<std::string> refused = audit();
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
            expected[json::json_pointer(change["pointer"].get<std::string>())]["name"] = change["name"];
        }
        ASSERT_EQ(text, expected.dump(1));
        const std::set<std::string> remaining = audit();
        EXPECT_EQ(remaining, PointersIn(fix["left"])) << text;
        const json again = run({"fix", "--write"}).second;
        EXPECT_EQ(again["fixed"], json::array());
        EXPECT_EQ(PointersIn(again["left"]), remaining);
        EXPECT_EQ(ReadFile(file), text);
        for (const json& name : fix["left"])
            EXPECT_TRUE(isHard ||
                        name["reasonLeft"] == "Nothing legal remains of the name, and its type has no base name.")
                << name;
    }
}

TEST(Fix, ChangesOnlyTheBytesOfTheNames) {
    const auto loads = [](const std::string& names) {
        std::string text = R"({"cases": [{"steps": [{"type": "S", "sets": [{"type": "L", "features": [)";
        std::istringstream list(names);
        for (std::string name; std::getline(list, name, ',');)
            text += R"({"type": "QVRPressure", "name": ")" + name + "\"}, ";
        return text + R"({"type": "P"}]}]}]}]})";
    };
    const auto jobs = [](const std::string& first, const std::string& second) {
        return R"({"cases": [{"jobs": [{"name": "1\u0041"}]}, {"jobs": [{"name": "B-1"}, {"name": ")" + first +
               R"("}, {"name": ")" + second + R"("}]}]})";
    };
    const std::string longest(72, 'x');
    const std::tuple<const char*, std::string, std::string> rows[] = {
        {"layout, escapes and order",
         "\xEF\xBB\xBF{\"cases\":[ {\r\n\t\"name\" :\"\\u0041\\\\\" , \"comment\":\"\\u0041.\"},{\"name\":\"a.\"} ] "
         "}\n",
         "\xEF\xBB\xBF{\"cases\":[ {\r\n\t\"name\" :\"A/\" , \"comment\":\"\\u0041.\"},{\"name\":\"a-\"} ] }\n"},
        {"the first keeps its name", loads("a,A,B-1,b-1"), loads("a,a-1,B-1,B-2")},
        {"a legal name is kept", loads("A.1,A-1"), loads("A-2,A-1")},
        {"a legal text comes first", loads("A.1,a-1,A-1"), loads("a-2,a-1,a-3")},
        {"spellings of one base", loads("a-1,A-1,A-2,a-3"), loads("a-1,a-4,A-2,a-3")},
        {"the largest number", loads("A-2147483647,A-2147483647"), loads("A-2147483647,A-1")},
        {"digits, empty names", loads("12,,\\\"\\\",Pressure-7"),
         loads("Pressure-12,Pressure-13,Pressure-14,Pressure-7")},
        {"space for the number", loads(longest + "," + longest), loads(longest + "," + std::string(61, 'x') + "-1")},
        {"jobs of another case", jobs("1a", "b-1"), jobs("1A-1", "B-2")},
    };
    const TestFolder folder;
    for (const auto& [rule, text, expected] : rows) {
        const std::string file = folder.Write("document.json", text);
        EXPECT_EQ(RunWith({"fix", file, "--write"}).code, 0) << rule;
        EXPECT_EQ(ReadFile(file), expected) << rule;
    }
}

} // namespace
