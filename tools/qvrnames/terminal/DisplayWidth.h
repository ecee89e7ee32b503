#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

// Widths are in columns of a terminal. Texts are UTF-8; for ill-formed text the results are unspecified, but no
// function reads beyond its end.

/// Returns the first character of a text and its length in bytes.
/// @pre `text` is not empty
[[nodiscard]] std::pair<char32_t, std::size_t> FirstCharacter(std::string_view text);

/// Returns the width of a text: two columns for each wide East Asian character, none for a combining mark, one for each
/// other character. Independent of the locale.
[[nodiscard]] std::size_t DisplayWidth(std::string_view text);

/// Returns the length in bytes of the longest beginning that is not wider than `width`. Combining marks stay with their
/// base character. At least one character is included, unless the text is empty.
[[nodiscard]] std::size_t BytesThatFit(std::string_view text, std::size_t width);

/// Returns the text with control characters, U+FFFE and U+FFFF replaced by \u0009 and so on, so that a name cannot
/// break a line, control the terminal, reverse the direction of the text after it or make a report invalid.
[[nodiscard]] std::string Printable(std::string_view text);
