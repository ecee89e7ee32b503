#include "Table.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <ostream>

namespace {

using Cells = std::array<std::string, 6>;

Cells CellsOf(const Judgement& row) {
    return {row.work, row.ours, row.against, row.ratio, row.budget, row.isHeld ? "held" : "BROKEN"};
}

} // namespace

void PrintTable(std::ostream& out, const std::vector<Judgement>& judgements) {
    std::vector<Cells> rows{{"work", "ours", "against", "ratio", "budget", ""}};
    for (const Judgement& row : judgements)
        rows.push_back(CellsOf(row));
    std::array<std::size_t, 6> widths{};
    for (const Cells& cells : rows)
        for (std::size_t i = 0; i < cells.size(); ++i)
            widths[i] = std::max(widths[i], cells[i].size());
    for (const Cells& cells : rows) {
        for (std::size_t i = 0; i < cells.size(); ++i)
            out << "| " << std::left << std::setw(static_cast<int>(widths[i])) << cells[i] << ' ';
        out << "|\n";
        if (&cells == rows.data()) {
            for (const std::size_t width : widths)
                out << '|' << std::string(width + 2, '-');
            out << "|\n";
        }
    }
    const auto held = std::count_if(judgements.begin(), judgements.end(), [](const auto& row) { return row.isHeld; });
    out << '\n' << held << " of " << judgements.size() << " budgets held\n";
}
