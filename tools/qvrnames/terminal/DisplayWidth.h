#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

/// The first character of a well-formed UTF-8 text that is not empty, and the bytes that it takes.
std::pair<char32_t, std::size_t> FirstCharacter(std::string_view text);

/// The cells that a text takes on a terminal: two for each wide character of East Asia, none for a combining
/// mark, one for any other. The locale counts for nothing.
std::size_t CellsOf(std::string_view text);

/// The bytes that the beginning of a text takes: as much as goes into the cells, marks with what they are put
/// on; at least one character unless the text is empty.
std::size_t BytesThatFit(std::string_view text, std::size_t cells);

/// The text with its control characters written as \u0009 and the like, so that a name can neither break a
/// line nor steer a terminal nor turn the direction of writing around.
std::string Printable(std::string_view text);
