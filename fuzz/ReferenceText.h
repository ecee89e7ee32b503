#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Reference implementations of string operations: simple, slow, and without code of the library.
namespace Reference {

using Text = std::u16string;
using View = std::u16string_view;

enum End { Leading = 1, Trailing = 2, Both = 3, Everywhere = 4 };

Text Stripped(View text, char16_t unit, End end);
Text Replaced(View text, View old, View by);
/// Replaces a range. Positions outside the text are clamped; a negative count means "to the end".
Text Replaced(View text, int start, int count, View by);
Text Substring(View text, int start, int count);
int FindFirst(View text, View sub, int start);
/// Returns the position of the last occurrence at or after `start`, or -1 if there is none.
int FindLast(View text, View sub, int start);
bool BeginsWith(View text, View sub);
bool ContainsAny(View text, View anyOf);

/// Parses a number like "%d". Returns nothing if there is no number or if it is outside the range of int.
std::optional<int> NumberAtFront(View text);
Text ToDecimal(int number);

/// Converts to UTF-8. Replaces each lone surrogate by U+FFFD.
std::string Utf8Of(View text);
/// Converts from UTF-8. Replaces each byte outside a well-formed sequence by U+FFFD.
Text FromUtf8(std::string_view bytes);
/// Returns the characters: surrogate pairs, and all other units one by one.
std::vector<Text> Characters(View text);
Text LoweredAscii(View text);

} // namespace Reference
