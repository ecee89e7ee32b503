#include "ExitCode.h"
#include "commands/Commands.h"
#include "terminal/DisplayWidth.h"
#include "terminal/Table.h"

#include <nlohmann/json.hpp>

int CheckNames(const CheckRequest& request, Console console) {
    nlohmann::ordered_json names = nlohmann::ordered_json::array();
    Table table;
    bool isRefused = false;
    for (const std::string& argument : request.names) {
        const ZFXUnicodeString name = ToUnicode(argument);
        const Verdict verdict = request.areFileNames ? CheckFileName(name) : CheckText(name);
        isRefused |= verdict.IsRefusal();
        nlohmann::ordered_json json{{"name", argument}, {"legal", !verdict.IsRefusal()}};
        table.rows.push_back({{Printable(argument)}, {verdict.IsRefusal() ? "refused" : "legal"}});
        if (verdict.IsRefusal()) {
            json["messageId"] = verdict.messageId;
            json["message"] = verdict.message;
            table.rows.back().push_back({verdict.messageId, Style::Refusal});
            table.rows.back().push_back({Printable(verdict.message)});
        }
        names.push_back(std::move(json));
    }
    if (console.isJson)
        PrintJson(console.out, {{"legal", !isRefused}, {"names", names}});
    else
        PrintTable(console.out, table, console.screen);
    return isRefused ? kRefused : kSuccess;
}
