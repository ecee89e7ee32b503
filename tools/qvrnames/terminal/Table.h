#pragma once

#include "terminal/Terminal.h"

#include <iosfwd>
#include <string>
#include <vector>

struct Cell {
    std::string text; ///< a single line
    Style style = Style::Plain;
};
using Row = std::vector<Cell>;

struct Table {
    std::vector<std::string> headings; ///< one per column, or none
    std::vector<Row> rows;             ///< may have fewer cells than there are columns
};

/// Prints the rows with aligned columns. No text is shortened.
///
/// If the terminal is too narrow, the texts are wrapped in their columns. If the columns would become narrower than a
/// minimum, the cells of a row are printed below each other, each after its heading.
void PrintTable(std::ostream& out, const Table& table, const Screen& screen);
