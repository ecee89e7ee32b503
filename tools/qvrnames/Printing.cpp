#include "Printing.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>
#include <ostream>

namespace {

/// A column grows no wider than this; longer texts push what follows them.
constexpr std::size_t kWidestColumn = 48;

struct Range {
    char32_t first;
    char32_t last;
};
/// The blocks whose characters take two cells of a terminal.
constexpr Range kWide[] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},  {0xFE30, 0xFE6F},
                           {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}, {0x1F300, 0x1FAFF}, {0x20000, 0x3FFFD}};

std::size_t BytesOf(unsigned char lead) { return lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4; }

/// The first character of a well-formed text and the bytes that it takes.
std::pair<char32_t, std::size_t> FirstCharacter(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t bytes = std::min(BytesOf(lead), text.size());
    char32_t code = bytes == 1 ? lead : lead & (0xFFU >> (bytes + 1));
    for (std::size_t i = 1; i < bytes; ++i)
        code = (code << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
    return {code, bytes};
}

std::size_t CellsOf(std::string_view text) {
    std::size_t cells = 0;
    while (!text.empty()) {
        const auto [code, bytes] = FirstCharacter(text);
        text.remove_prefix(bytes);
        const bool isMark = code >= 0x300 && code <= 0x36F;
        const bool isWide = std::any_of(std::begin(kWide), std::end(kWide),
                                        [c = code](const Range& range) { return c >= range.first && c <= range.last; });
        cells += isMark ? 0 : isWide ? 2 : 1;
    }
    return cells;
}

} // namespace

std::string Printable(std::string_view text) {
    std::string printable;
    while (!text.empty()) {
        const auto [code, bytes] = FirstCharacter(text);
        if (code >= 0x20 && (code < 0x7F || code > 0x9F)) {
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

void PrintTable(std::ostream& out, const std::vector<std::vector<std::string>>& rows) {
    std::vector<std::size_t> widths;
    for (const auto& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], std::min(CellsOf(row[i]), kWidestColumn));
    }
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            out << row[i];
            if (i + 1 < row.size()) {
                const std::size_t cells = CellsOf(row[i]);
                out << std::string(widths[i] - std::min(widths[i], cells) + 2, ' ');
            }
        }
        out << '\n';
    }
}

void PrintJson(std::ostream& out, const nlohmann::ordered_json& value) { out << value.dump(2) << '\n'; }
