#include "terminal/Printing.h"

#include "terminal/DisplayWidth.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <ostream>

namespace {

/// Characters that break lines, steer a terminal, or turn around the direction of what follows them.
bool IsControl(char32_t code) {
    return code < 0x20 || (code >= 0x7F && code <= 0x9F) || (code >= 0x2028 && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069);
}

} // namespace

std::string Printable(std::string_view text) {
    std::string printable;
    while (!text.empty()) {
        const auto [code, bytes] = FirstCharacter(text);
        if (!IsControl(code)) {
            printable += text.substr(0, bytes);
        } else {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned>(code) & 0xFFFFU);
            printable += escape;
        }
        text.remove_prefix(bytes);
    }
    return printable;
}

void PrintJson(std::ostream& out, const nlohmann::ordered_json& value) { out << value.dump(2) << '\n'; }
