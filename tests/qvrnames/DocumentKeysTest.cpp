#include "document/DocumentKeys.h"
#include "TestSupport.h"

#include <nlohmann/json.hpp>

#include <map>
#include <regex>
#include <set>

namespace {

using Words = std::set<std::string>;

/// Returns the words in backticks in a text.
Words WordsIn(const std::string& text) {
    static const std::regex word("`([^`]+)`");
    return {std::sregex_token_iterator(text.begin(), text.end(), word, 1), std::sregex_token_iterator()};
}

Words Keys(MemoryKind kind) {
    const std::vector<std::string> keys = KeysFor(kind);
    return {keys.begin(), keys.end()};
}

Words AllKeys() {
    Words keys;
    for (std::size_t key = 0; key < kDocumentKeyCount; ++key)
        keys.insert(SpellingOf(static_cast<DocumentKey>(key)));
    return keys;
}

/// Returns the keys of a kind of object without those that the page lists once: the keys of every object, and those
/// that lead to the objects below the kinds that have features.
Words FurtherKeys(MemoryKind kind) {
    Words keys = Keys(kind);
    for (const std::string& key : Keys(keys.contains("features") ? MemoryKind::Step : MemoryKind::History))
        keys.erase(key);
    return keys;
}

// The first table of docs/document-file.md has three columns, the second one five.
TEST(DocumentKeys, AreOnThePageWithTheirDefaultTypes) {
    Words ofEveryObject;
    Words listed;
    std::map<std::string, std::pair<Words, Words>> rows; // the default type and the further keys
    std::istringstream page(ReadFile(DOCUMENT_FILE_PAGE));
    for (std::string line; std::getline(page, line);) {
        static const std::regex row(R"(\| (`[^|]*) \|[^|]*\|[^|]*\|(?:([^|]*)\|([^|]*)\|)?)");
        std::smatch cells;
        if (!std::regex_match(line, cells, row))
            continue;
        const Words keys = WordsIn(cells[1]);
        if (cells[2].matched)
            rows[*keys.begin()] = {WordsIn(cells[2]), WordsIn(cells[3])};
        else
            ofEveryObject.insert(keys.begin(), keys.end());
        listed.merge(WordsIn(cells.str(1) + cells.str(3)));
    }
    Words expected = Keys(MemoryKind::History);
    expected.insert("$schema");
    EXPECT_EQ(ofEveryObject, expected);
    EXPECT_EQ(listed, AllKeys());
    for (const auto& [key, kind, defaultType, isList] : kChildKeys) {
        const auto row = rows.find(SpellingOf(key));
        if (row == rows.end())
            continue; // a further key, as `listed` shows
        const bool hasDefault = defaultType != nullptr && Keys(kind).contains("type");
        EXPECT_EQ(row->second.first, hasDefault ? Words{defaultType} : Words{}) << row->first;
        EXPECT_EQ(row->second.second, FurtherKeys(kind)) << row->first;
    }
}

TEST(DocumentKeys, AreInTheLastExampleOfThePage) {
    static const std::regex example("```json\n([^`]*)```");
    const std::string page = ReadFile(DOCUMENT_FILE_PAGE);
    const TestFolder folder;
    std::string text;
    for (std::sregex_iterator match(page.begin(), page.end(), example), end; match != end; ++match) {
        text = match->str(1);
        const RunResult result = RunWith({"audit", "--deck", "--strict", folder.Write("example.json", text)});
        EXPECT_EQ(result.code, 0) << result.out << result.err;
    }
    for (const std::string& key : AllKeys())
        EXPECT_NE(text.find('"' + key + "\":"), text.npos) << key;
}

/// Returns the keys that a definition of the schema allows, including those of its base definitions.
Words KeysIn(const nlohmann::json& schema, nlohmann::json definition) {
    Words keys;
    for (const auto& [key, value] : definition["properties"].items())
        keys.insert(key);
    for (const auto& base : definition["allOf"])
        keys.merge(KeysIn(schema, schema.at(nlohmann::json::json_pointer(base["$ref"].get<std::string>().substr(1)))));
    return keys;
}

TEST(DocumentKeys, AreThoseOfTheSchema) {
    const auto schema = nlohmann::json::parse(ReadFile(QVRNAMES_FOLDER "/document.schema.json"));
    using enum MemoryKind;
    // clang-format off
    const std::pair<const char*, MemoryKind> rows[] = {
        {"case", Case}, {"history", History}, {"step", Step}, {"set", Set}, {"propertySet", Set}, {"job", Feature},
        {"jobContainer", JobContainer}, {"feature", Feature}, {"meshManager", MeshManager}, {"meshPart", MeshPart},
        {"material", Material}, {"group", Group}, {"support", Support}, {"connector", Connector},
        {"connectionDesign", ConnectionDesign},
    };
    // clang-format on
    for (const auto& [name, kind] : rows)
        EXPECT_EQ(KeysIn(schema, schema.at("$defs").at(name)), Keys(kind)) << name;
    EXPECT_EQ(KeysIn(schema, schema), Keys(Model));
    const std::string text = schema.dump();
    for (const ChildKey& child : kChildKeys)
        if (child.defaultType != nullptr && child.kind != MeshManager) {
            EXPECT_NE(text.find(std::string(R"("default":")") + child.defaultType), text.npos) << child.defaultType;
        }
}

} // namespace
