#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

struct CsvRow {
    std::size_t line; ///< the line in which the row begins, 1-based
    std::vector<std::string> fields;
};

/// Parses a table of comma-separated values (RFC 4180). The text is UTF-8, with or without a byte order mark. Rows end
/// with LF or CRLF. Lines without a value, such as ",,", are skipped. All other bytes of a field belong to its value,
/// spaces included.
///
/// Throws BadInput with the line if
/// - a quoted field is not closed, or is followed by text other than a comma or the end of the line,
/// - a field that is not quoted contains a quote or a carriage return,
/// - a row and the first row differ in the number of fields,
/// - a field is not UTF-8, or contains the character U+0000.
[[nodiscard]] std::vector<CsvRow> ParseCsv(std::string_view text);

/// Throws BadInput: "line N: MESSAGE".
[[noreturn]] void ThrowLineError(std::size_t line, const std::string& message);
