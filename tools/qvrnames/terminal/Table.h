#pragma once

#include "terminal/Terminal.h"

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

struct Cell {
    std::string text; ///< in one line
    Ink ink = Ink::Plain;
};
using Row = std::vector<Cell>;

struct Table {
    std::vector<std::string> headings; ///< none, or one a column
    std::vector<Row> rows;             ///< a row may end early
};

/// The rows below each other, the columns of every row beside each other; the last one is not filled up.
///
/// Nothing is ever cut. On a terminal that is too narrow the texts are wrapped in their columns, and where
/// that would leave a column only a sliver, the cells of a row stand below each other, each behind its heading.
void PrintTable(std::ostream& out, const Table& table, const Screen& screen);
