#include "terminal/Table.h"

#include "terminal/DisplayWidth.h"

#include <algorithm>
#include <numeric>
#include <ostream>

namespace {

constexpr std::size_t kGap = 2;
/// Off a terminal a column grows no wider than this; longer texts push what follows them.
constexpr std::size_t kWidestColumn = 48;
/// On a terminal columns of up to so many cells are not wrapped, so that message ids stay whole; others are
/// wrapped to no less than the next number, and sentences, which are wider than the widest column, to no less
/// than the last.
constexpr std::size_t kWidestWhole = 24;
constexpr std::size_t kNarrowestColumn = 16;
constexpr std::size_t kNarrowestText = 30;

using Widths = std::vector<std::size_t>;
using Lines = std::vector<std::string_view>;

/// How wide the columns are with all rows, or with all but the widest tenth of the cells of each that is
/// wrapped.
Widths ColumnWidths(const Table& table, bool isWithoutOutliers) {
    std::vector<Widths> columns;
    for (const std::string& heading : table.headings)
        columns.push_back({CellsOf(heading)});
    for (const Row& row : table.rows) {
        columns.resize(std::max(columns.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            columns[i].push_back(CellsOf(row[i].text));
    }
    Widths widths;
    for (Widths& cells : columns) {
        std::sort(cells.begin(), cells.end());
        const bool isCut = isWithoutOutliers && cells.back() > kWidestWhole;
        widths.push_back(cells[cells.size() - 1 - (isCut ? cells.size() / 10 : 0)]);
    }
    return widths;
}

std::size_t WithGaps(const Widths& widths) {
    return std::accumulate(widths.begin(), widths.end(), kGap * (widths.size() - 1));
}

std::size_t NarrowestOf(std::size_t natural) {
    if (natural <= kWidestWhole)
        return natural;
    return natural <= kWidestColumn ? kNarrowestColumn : kNarrowestText;
}

/// The widths taken down to the same limit, the largest with which the table fits; nothing when that would
/// leave slivers. The last column gets what is left over. A few wide cells make no column wider.
Widths FittedWidths(const Table& table, std::size_t columns) {
    const Widths usual = ColumnWidths(table, true);
    Widths fitted;
    for (std::size_t limit = 0; limit <= columns; ++limit) {
        Widths tried;
        for (const std::size_t width : usual)
            tried.push_back(std::max(std::min(width, limit), NarrowestOf(width)));
        if (WithGaps(tried) > columns)
            break;
        fitted = std::move(tried);
    }
    if (!fitted.empty())
        fitted.back() += columns - WithGaps(fitted);
    return fitted;
}

/// Whether a line may end in front of the place without breaking a word: wide characters are words of their own.
bool MayBreakAt(std::string_view text, std::size_t place) {
    const std::string_view rest = text.substr(place);
    return rest.front() == ' ' || CellsOf(rest.substr(0, FirstCharacter(rest).second)) > 1;
}

/// The text in lines of so many cells, broken behind blanks and slashes where there are any.
Lines Wrapped(std::string_view text, std::size_t width) {
    Lines lines;
    while (CellsOf(text) > width) {
        std::size_t end = BytesThatFit(text, width);
        if (!MayBreakAt(text, end))
            if (const auto wordEnd = text.substr(0, end).find_last_of(" /"); wordEnd != std::string_view::npos)
                end = wordEnd + 1;
        const std::string_view line = text.substr(0, end);
        lines.push_back(line.substr(0, line.find_last_not_of(' ') + 1));
        text.remove_prefix(std::min(text.find_first_not_of(' ', end), text.size()));
    }
    lines.push_back(text);
    return lines;
}

std::string Blanks(std::size_t count) { return std::string(count, ' '); }

/// One row, on as many lines as its longest cell needs; no width: nothing is wrapped.
void PrintRow(std::ostream& out, const Row& row, const Widths& widths, bool isWrapped, const Screen& screen) {
    std::vector<Lines> cells;
    std::size_t height = 0;
    for (std::size_t i = 0; i < row.size(); ++i) {
        cells.push_back(isWrapped ? Wrapped(row[i].text, widths[i]) : Lines{row[i].text});
        height = std::max(height, cells.back().size());
    }
    for (std::size_t line = 0; line < height; ++line) {
        std::size_t missing = 0; // blanks are only written in front of text
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string_view text = line < cells[i].size() ? cells[i][line] : std::string_view();
            if (!text.empty())
                out << Blanks(missing) << Inked(text, row[i].ink, screen);
            const std::size_t cellsUsed = CellsOf(text);
            const std::size_t filling = widths[i] - std::min(widths[i], cellsUsed) + kGap;
            missing = text.empty() ? missing + filling : filling;
        }
        out << '\n';
    }
}

/// The cells below each other: the first one, and the others indented, behind the headings if there are any.
void PrintStacked(std::ostream& out, const Table& table, const Screen& screen) {
    std::size_t indent = kGap;
    for (std::size_t i = 1; i < table.headings.size(); ++i)
        indent = std::max(indent, kGap + CellsOf(table.headings[i]) + kGap);
    for (const Row& row : table.rows)
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::size_t before = i == 0 ? 0 : indent;
            const std::size_t room = std::max(screen.columns, before + kNarrowestColumn) - before;
            std::string beginning = Blanks(before);
            if (i > 0 && i < table.headings.size()) {
                const std::string& heading = table.headings[i];
                beginning =
                    Blanks(kGap) + Inked(heading, Ink::Heading, screen) + Blanks(indent - kGap - CellsOf(heading));
            }
            for (const std::string_view line : Wrapped(row[i].text, room)) {
                out << beginning << Inked(line, row[i].ink, screen) << '\n';
                beginning = Blanks(before);
            }
        }
}

} // namespace

void PrintTable(std::ostream& out, const Table& table, const Screen& screen) {
    Widths widths = ColumnWidths(table, false);
    const bool isTooWide = screen.columns > 0 && !widths.empty() && WithGaps(widths) > screen.columns;
    if (isTooWide)
        widths = FittedWidths(table, screen.columns);
    else if (screen.columns == 0)
        for (std::size_t& width : widths)
            width = std::min(width, kWidestColumn);
    if (widths.empty()) {
        PrintStacked(out, table, screen);
        return;
    }
    Row headings;
    for (const std::string& heading : table.headings)
        headings.push_back({heading, Ink::Heading});
    if (!headings.empty())
        PrintRow(out, headings, widths, isTooWide, screen);
    for (const Row& row : table.rows)
        PrintRow(out, row, widths, isTooWide, screen);
}
