#include "Table.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <ostream>

namespace {

using Cells = std::array<std::string, 8>;

Cells CellsOf(const BudgetResult& row) {
    return {row.subject, row.measured, row.reference, row.ratio, row.budget, row.isWithinBudget ? "ok" : "FAILED",
            row.time,    row.floor};
}

} // namespace

void PrintTable(std::ostream& out, const std::vector<BudgetResult>& budgetResults) {
    std::vector<Cells> rows{
        {"subject", "measured", "compared with", "ratio", "budget", "result", "time (ratio)", "floor"}};
    for (const BudgetResult& row : budgetResults)
        rows.push_back(CellsOf(row));
    std::array<std::size_t, 8> widths{};
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
    const auto within =
        std::count_if(budgetResults.begin(), budgetResults.end(), [](const auto& row) { return row.isWithinBudget; });
    out << '\n' << within << " of " << budgetResults.size() << " results are within their budget\n";
}
