#include "terminal/Table.h"

#include "terminal/DisplayWidth.h"

#include <algorithm>
#include <cassert>
#include <numeric>
#include <ostream>

namespace {

constexpr std::size_t kGap = 2;
/// Without a terminal, columns are padded to at most this width. Longer texts move the rest of their row to the right.
constexpr std::size_t kMaxColumnWidth = 48;
/// On a terminal, columns up to this width are not wrapped, so that message ids stay in one piece.
constexpr std::size_t kMaxUnwrappedWidth = 24;
/// The minimum width of a wrapped column.
constexpr std::size_t kMinColumnWidth = 16;
/// The minimum width of a wrapped column of sentences. A column is one of sentences if it needs more than
/// kMaxColumnWidth.
constexpr std::size_t kMinTextWidth = 30;

using Widths = std::vector<std::size_t>;
using Lines = std::vector<std::string_view>;

/// Returns the width of each column. With `isWithoutOutliers`, ignores the widest tenth of the cells of each column
/// that can be wrapped.
Widths ColumnWidths(const Table& table, bool isWithoutOutliers) {
    std::vector<Widths> columns;
    for (const std::string& heading : table.headings)
        columns.push_back({DisplayWidth(heading)});
    for (const Row& row : table.rows) {
        columns.resize(std::max(columns.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            columns[i].push_back(DisplayWidth(row[i].text));
    }
    Widths widths;
    for (Widths& cells : columns) {
        std::sort(cells.begin(), cells.end());
        const bool canWrap = cells.back() > kMaxUnwrappedWidth;
        widths.push_back(cells[cells.size() - 1 - (isWithoutOutliers && canWrap ? cells.size() / 10 : 0)]);
    }
    return widths;
}

/// Returns the width of a line.
std::size_t TotalWidth(const Widths& widths) {
    assert(!widths.empty());
    return std::accumulate(widths.begin(), widths.end(), kGap * (widths.size() - 1));
}

/// Returns the width below which a column must not be narrowed.
std::size_t MinWidth(std::size_t natural) {
    if (natural <= kMaxUnwrappedWidth)
        return natural;
    return natural <= kMaxColumnWidth ? kMinColumnWidth : kMinTextWidth;
}

/// Returns widths with which the table fits on the terminal, or nothing if columns would become too narrow. Limits all
/// columns to the same width, as large as possible, and gives the remaining space to the last one. Outliers are
/// ignored, so that a few wide cells do not widen their column.
Widths FitWidths(const Table& table, std::size_t columns) {
    const Widths usual = ColumnWidths(table, true);
    Widths fitted;
    for (std::size_t limit = 0; limit <= columns; ++limit) {
        Widths tried;
        for (const std::size_t width : usual)
            tried.push_back(std::max(std::min(width, limit), MinWidth(width)));
        if (TotalWidth(tried) > columns)
            break;
        fitted = std::move(tried);
    }
    if (!fitted.empty())
        fitted.back() += columns - TotalWidth(fitted);
    return fitted;
}

/// Returns true if a line can end before the offset without breaking a word. Each wide character is a word.
/// @pre `offset` is less than the length of the text
bool CanBreakBefore(std::string_view text, std::size_t offset) {
    assert(offset < text.size());
    const std::string_view rest = text.substr(offset);
    return rest.front() == ' ' || DisplayWidth(rest.substr(0, FirstCharacter(rest).second)) > 1;
}

/// Splits the text into lines of at most `width` columns, after spaces and slashes if possible.
Lines Wrap(std::string_view text, std::size_t width) {
    Lines lines;
    while (DisplayWidth(text) > width) {
        std::size_t end = BytesThatFit(text, width);
        if (!CanBreakBefore(text, end))
            if (const auto wordEnd = text.substr(0, end).find_last_of(" /"); wordEnd != std::string_view::npos)
                end = wordEnd + 1;
        const std::string_view line = text.substr(0, end);
        lines.push_back(line.substr(0, line.find_last_not_of(' ') + 1));
        text.remove_prefix(std::min(text.find_first_not_of(' ', end), text.size()));
    }
    lines.push_back(text);
    return lines;
}

std::string Spaces(std::size_t count) { return std::string(count, ' '); }

/// Prints one row, in as many lines as its longest cell needs.
void PrintRow(std::ostream& out, const Row& row, const Widths& widths, bool isWrapped, const Screen& screen) {
    std::vector<Lines> cells;
    std::size_t height = 0;
    for (std::size_t i = 0; i < row.size(); ++i) {
        cells.push_back(isWrapped ? Wrap(row[i].text, widths[i]) : Lines{row[i].text});
        height = std::max(height, cells.back().size());
    }
    for (std::size_t line = 0; line < height; ++line) {
        std::size_t padding = 0; // printed before the next text, so that no line ends with spaces
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string_view text = line < cells[i].size() ? cells[i][line] : std::string_view();
            if (!text.empty())
                out << Spaces(padding) << Styled(text, row[i].style, screen);
            const std::size_t rest = widths[i] - std::min(widths[i], DisplayWidth(text)) + kGap;
            padding = text.empty() ? padding + rest : rest;
        }
        out << '\n';
    }
}

/// Prints the cells of each row below each other: the first one, then the others, indented, after their headings.
void PrintStacked(std::ostream& out, const Table& table, const Screen& screen) {
    std::size_t indent = kGap;
    for (std::size_t i = 1; i < table.headings.size(); ++i)
        indent = std::max(indent, kGap + DisplayWidth(table.headings[i]) + kGap);
    for (const Row& row : table.rows)
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::size_t margin = i == 0 ? 0 : indent;
            const std::size_t width = std::max(screen.columns, margin + kMinColumnWidth) - margin;
            std::string prefix = Spaces(margin);
            if (i > 0 && i < table.headings.size()) {
                const std::string& heading = table.headings[i];
                prefix = Spaces(kGap) + Styled(heading, Style::Heading, screen) +
                         Spaces(indent - kGap - DisplayWidth(heading));
            }
            for (const std::string_view line : Wrap(row[i].text, width)) {
                out << prefix << Styled(line, row[i].style, screen) << '\n';
                prefix = Spaces(margin);
            }
        }
}

} // namespace

void PrintTable(std::ostream& out, const Table& table, const Screen& screen) {
    Widths widths = ColumnWidths(table, false);
    if (widths.empty())
        return;
    const bool isTooWide = screen.columns > 0 && TotalWidth(widths) > screen.columns;
    if (isTooWide)
        widths = FitWidths(table, screen.columns);
    else if (screen.columns == 0)
        for (std::size_t& width : widths)
            width = std::min(width, kMaxColumnWidth);
    if (widths.empty()) { // they do not fit next to each other
        PrintStacked(out, table, screen);
        return;
    }
    Row headings;
    for (const std::string& heading : table.headings)
        headings.push_back({heading, Style::Heading});
    if (!headings.empty())
        PrintRow(out, headings, widths, isTooWide, screen);
    for (const Row& row : table.rows)
        PrintRow(out, row, widths, isTooWide, screen);
}
