#include "commands/Commands.h"
#include "commands/Deck.h"
#include "document/FeaturePaths.h"
#include "terminal/DisplayWidth.h"
#include "terminal/Table.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace {

void PrintSection(const DeckSection& section, const LoadedDocument& loaded, Console console) {
    Table table{{section.title}, {}};
    for (const DeckColumn& column : section.columns)
        table.headings.emplace_back(column.title);
    for (const DeckRow& row : section.rows) {
        table.rows.push_back({{Printable(DisplayPath(loaded, row.entry))}});
        for (const std::optional<std::string>& name : row.names)
            table.rows.back().push_back({!name ? "-" : name->empty() ? "\"\"" : Printable(*name)});
    }
    PrintTable(console.out, table, console.screen);
    console.out << '\n';
}

nlohmann::ordered_json AsJson(const DeckSection& section, const LoadedDocument& loaded) {
    nlohmann::ordered_json rows = nlohmann::ordered_json::array();
    for (const DeckRow& row : section.rows) {
        nlohmann::ordered_json json{{"feature", DisplayPath(loaded, row.entry)},
                                    {"pointer", PointerOf(loaded, row.entry)}};
        for (std::size_t c = 0; c < section.columns.size(); ++c)
            json[section.columns[c].key] =
                row.names[c] ? nlohmann::ordered_json(*row.names[c]) : nlohmann::ordered_json();
        rows.push_back(std::move(json));
    }
    return rows;
}

} // namespace

int ShowDeck(const std::string& document, Console console) {
    const auto loaded = OpenDocument(document);
    const std::vector<DeckSection> deck = BuildDeck(*loaded);
    nlohmann::ordered_json json = nlohmann::ordered_json::object();
    std::size_t objects = 0;
    for (const DeckSection& section : deck) {
        objects += section.rows.size();
        if (console.isJson)
            json[section.key] = AsJson(section, *loaded);
        else if (!section.rows.empty())
            PrintSection(section, *loaded, console);
    }
    if (console.isJson)
        PrintJson(console.out, json);
    else
        console.out << Counted(objects, "object") << " in the deck\n";
    return kSuccess;
}
