#include "Commands.h"
#include "Printing.h"
#include "Run.h"
#include "Verdict.h"

#include <nlohmann/json.hpp>

int CheckNames(const CheckRequest& request, Console console) {
    nlohmann::ordered_json names = nlohmann::ordered_json::array();
    std::vector<std::vector<std::string>> rows;
    bool isRefused = false;
    for (const std::string& argument : request.names) {
        const ZFXUnicodeString name = TextOf(argument);
        const Verdict verdict = request.areFileNames ? JudgeFileName(name) : JudgeText(name);
        isRefused |= verdict.IsRefusal();
        nlohmann::ordered_json said{{"name", argument}, {"legal", !verdict.IsRefusal()}};
        rows.push_back({Printable(argument), verdict.IsRefusal() ? "refused" : "legal"});
        if (verdict.IsRefusal()) {
            said["messageId"] = verdict.messageId;
            said["message"] = verdict.message;
            rows.back().insert(rows.back().end(), {verdict.messageId, Printable(verdict.message)});
        }
        names.push_back(std::move(said));
    }
    if (console.isJson)
        PrintJson(console.out, {{"legal", !isRefused}, {"names", names}});
    else
        PrintTable(console.out, rows);
    return isRefused ? kRefused : kFine;
}
