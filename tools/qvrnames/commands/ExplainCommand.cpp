#include "ExitCode.h"
#include "commands/Commands.h"
#include "commands/Rules.h"
#include "document/EditDistance.h"
#include "terminal/Table.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <ostream>
#include <string_view>

namespace {

nlohmann::ordered_json AsJson(const Rule& rule) {
    nlohmann::ordered_json operations = nlohmann::ordered_json::array();
    std::string_view rest = rule.operations;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(", "), rest.size());
        operations.push_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 2, rest.size()));
    }
    return {{"rule", rule.id},
            {"cause", rule.cause},
            {"example", rule.example},
            {"fix", rule.fix},
            {"operations", std::move(operations)}};
}

void ListRules(const std::vector<Rule>& rules, Console console) {
    nlohmann::ordered_json json = nlohmann::ordered_json::array();
    Table table;
    for (const Rule& rule : rules) {
        json.push_back(AsJson(rule));
        table.rows.push_back({{rule.id, Style::Refusal}, {rule.cause}});
    }
    if (console.isJson)
        PrintJson(console.out, {{"rules", json}});
    else
        PrintTable(console.out, table, console.screen);
}

void PrintRule(const Rule& rule, Console console) {
    if (console.isJson) {
        PrintJson(console.out, AsJson(rule));
        return;
    }
    Table table{{}, {{{"Cause"}, {rule.cause}}, {{"Example"}, {rule.example}}, {{"Fix"}, {rule.fix}}}};
    if (!rule.operations.empty())
        table.rows.push_back({{"Raised by"}, {rule.operations}});
    console.out << Styled(rule.id, Style::Refusal, console.screen) << '\n';
    PrintTable(console.out, table, console.screen);
}

} // namespace

int ExplainRule(const std::string& id, Console console) {
    const std::vector<Rule> rules = AllRules();
    if (id.empty()) {
        ListRules(rules, console);
        return kSuccess;
    }
    std::vector<std::string> known(rules.size());
    std::ranges::transform(rules, known.begin(), &Rule::id);
    const auto found = std::find(known.begin(), known.end(), id);
    if (found == known.end())
        throw BadInput("unknown message or rule \"" + id + "\"; " + Suggestion(id, known));
    PrintRule(rules[static_cast<std::size_t>(found - known.begin())], console);
    return kSuccess;
}
