// Makes a document file from a table: one object for each row, in the case, step and set of the row. The objects are a
// tree of nodes while the rows are read, because a row can add to any of them; then they become one JSON value.

#include "commands/Commands.h"
#include "document/CsvTable.h"
#include "document/DocumentKeys.h"
#include "document/EditDistance.h"
#include "files/FileErrors.h"
#include "files/WholeFile.h"
#include "terminal/DisplayWidth.h"

#include "LateTypes.h"
#include "text/Utf8Path.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <optional>
#include <ostream>
#include <system_error>
#include <tuple>

namespace {

using Json = nlohmann::ordered_json;

enum Column : std::size_t { kCase, kStep, kSet, kType, kName, kKind, kColumns };
const std::vector<std::string> kColumnNames{"case", "step", "set", "type", "name", "kind"};

enum class Use { Empty, Optional, Required };

/// What a row becomes.
struct RowKind {
    const char* name;
    std::optional<DocumentKey> owner; ///< the object that contains all objects of the kind; nothing: that of the row
    DocumentKey key;
    std::array<Use, kName> uses; ///< of the columns before the name
};

using enum Use;
constexpr RowKind kRowKinds[] = {
    {"feature", {}, DocumentKey::Features, {Optional, Optional, Required, Required}},
    {"step", {}, DocumentKey::Steps, {Required, Empty, Empty, Required}},
    {"job", {}, DocumentKey::Jobs, {Required, Empty, Empty, Optional}},
    {"material", {}, DocumentKey::Materials, {Empty, Empty, Empty, Optional}},
    {"property", DocumentKey::PropertySet, DocumentKey::Features, {Empty, Empty, Empty, Required}},
    {"meshPart", DocumentKey::MeshManager, DocumentKey::MeshParts, {Empty, Empty, Empty, Optional}},
};

const RowKind& FindKind(const std::string& name, std::size_t line) {
    if (name.empty())
        return kRowKinds[0]; // the default, a feature
    std::vector<std::string> known;
    for (const RowKind& kind : kRowKinds) {
        if (name == kind.name)
            return kind;
        known.emplace_back(kind.name);
    }
    ThrowLineError(line, "unknown kind \"" + name + "\"; " + Suggestion(name, known));
}

class Importer {
public:
    explicit Importer(const CsvRow& header) {
        for (const std::string& name : header.fields) {
            if (name.find_first_of(";\t") != std::string::npos)
                ThrowLineError(header.line, "the columns must be separated by commas");
            const auto found = std::find(kColumnNames.begin(), kColumnNames.end(), name);
            if (found == kColumnNames.end())
                ThrowLineError(header.line, "unknown column \"" + name + "\"; " + Suggestion(name, kColumnNames));
            const auto column = static_cast<std::size_t>(found - kColumnNames.begin());
            if (std::find(m_columns.begin(), m_columns.end(), column) != m_columns.end())
                ThrowLineError(header.line, "duplicate column \"" + name + "\"");
            m_columns.push_back(column);
        }
        if (std::find(m_columns.begin(), m_columns.end(), kName) == m_columns.end())
            ThrowLineError(header.line, "the column \"name\" is missing in the header");
    }

    void Add(const CsvRow& row) {
        std::array<std::string, kColumns> cells;
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            cells[m_columns[i]] = row.fields[i];
        const RowKind& kind = FindKind(cells[kKind], row.line);
        CheckUses(cells, kind, row.line);
        std::size_t owner = 0;
        if (!cells[kCase].empty())
            owner = FindOrAdd(owner, DocumentKey::Cases, cells[kCase], {{"name", cells[kCase]}});
        if (!cells[kStep].empty())
            owner = FindOrAdd(owner, DocumentKey::Steps, cells[kStep],
                              {{"type", LateTypes::QVRGeneralStaticStepLT}, {"name", cells[kStep]}});
        if (!cells[kSet].empty())
            owner = FindOrAdd(owner, DocumentKey::Sets, cells[kSet], {{"type", cells[kSet]}});
        if (kind.owner)
            owner = FindOrAdd(owner, *kind.owner, "", Json::object());
        Json object;
        if (!cells[kType].empty())
            object["type"] = cells[kType];
        object["name"] = cells[kName];
        if (kind.key == DocumentKey::Steps)
            AddStep(owner, cells[kName], std::move(object));
        else
            AddBelow(owner, kind.key, std::move(object));
    }

    /// Moves the objects below a node into its JSON object and returns it.
    Json Build(std::size_t node = 0) {
        Json json = std::move(m_nodes[node].json);
        for (const auto& [key, child] : m_nodes[node].children)
            if (IsList(key))
                json[SpellingOf(key)].push_back(Build(child));
            else
                json[SpellingOf(key)] = Build(child);
        return json;
    }

private:
    struct Node {
        Json json = Json::object();
        std::vector<std::pair<DocumentKey, std::size_t>> children = {}; ///< and the keys that lead to them
        bool isDeclared = false; ///< a step that a row of the kind "step" describes
    };

    static void CheckUses(const std::array<std::string, kColumns>& cells, const RowKind& kind, std::size_t line) {
        for (std::size_t column = 0; column < kind.uses.size(); ++column) {
            const bool isEmpty = cells[column].empty();
            const bool isMissing =
                isEmpty && (kind.uses[column] == Required || (column == kCase && !cells[kStep].empty()));
            if (isMissing || (!isEmpty && kind.uses[column] == Empty))
                ThrowLineError(line, "a row of the kind \"" + std::string(kind.name) + "\" " +
                                         (isMissing ? "needs" : "must not have") + " a value in the column \"" +
                                         kColumnNames[column] + "\"");
        }
    }

    std::size_t AddBelow(std::size_t owner, DocumentKey key, Json json) {
        m_nodes.push_back({std::move(json)});
        m_nodes[owner].children.emplace_back(key, m_nodes.size() - 1);
        return m_nodes.size() - 1;
    }

    /// Returns the object to which the key leads and which has this label; adds it as `json` at its first use.
    /// @param label  distinguishes objects with one key: the name of a case or step, the type of a set
    std::size_t FindOrAdd(std::size_t owner, DocumentKey key, const std::string& label, Json json) {
        const auto [found, isNew] = m_containers.try_emplace({owner, key, label}, 0);
        if (isNew)
            found->second = AddBelow(owner, key, std::move(json));
        return found->second;
    }

    /// Adds a step, or completes one that other rows have already used. A second row for a step is a second step with
    /// this name, so that an audit finds the duplicate.
    void AddStep(std::size_t owner, const std::string& name, Json json) {
        std::size_t step = FindOrAdd(owner, DocumentKey::Steps, name, json);
        if (m_nodes[step].isDeclared)
            step = m_containers[{owner, DocumentKey::Steps, name}] = AddBelow(owner, DocumentKey::Steps, json);
        m_nodes[step].json = std::move(json);
        m_nodes[step].isDeclared = true;
    }

    std::vector<std::size_t> m_columns; // of the fields of a row
    std::vector<Node> m_nodes{1};       // the first one is the document
    std::map<std::tuple<std::size_t, DocumentKey, std::string>, std::size_t> m_containers; // by owner, key and label
};

Json DocumentOf(const std::vector<CsvRow>& rows) {
    if (rows.empty())
        throw BadInput("the table is empty; its first row must contain the names of the columns");
    Importer importer(rows.front());
    for (std::size_t i = 1; i < rows.size(); ++i)
        importer.Add(rows[i]);
    return importer.Build();
}

/// Writes the document to the output file, which must not be the table.
void WriteToFile(const std::string& bytes, const ImportRequest& request) {
    const std::string table = request.table == kStandardStream ? "/dev/stdin" : request.table;
    std::error_code error; // a file that does not exist differs from all others
    if (std::filesystem::equivalent(Utf8::ToPath(table), Utf8::ToPath(request.output), error))
        ThrowFileError(request.output, "written", "it is the table; specify another file");
    ReplaceWholeFile(request.output, bytes, kStandardStream);
}

} // namespace

int ImportTable(const ImportRequest& request, Console console) {
    const std::string bytes = ReadWholeFile(request.table);
    std::vector<CsvRow> rows;
    Json document;
    try {
        rows = ParseCsv(bytes);
        document = DocumentOf(rows);
    } catch (const BadInput& error) {
        ThrowBadInput(request.table, error.what());
    }
    if (request.output.empty() || request.output == kStandardStream) {
        PrintJson(console.out, document);
        return kSuccess;
    }
    WriteToFile(document.dump(2) + "\n", request);
    if (console.isJson)
        PrintJson(console.out, {{"output", request.output}, {"rows", rows.size() - 1}});
    else
        console.out << Printable(request.output) << ": " << Counted(rows.size() - 1, "row") << " imported\n";
    return kSuccess;
}
