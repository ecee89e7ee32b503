#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Texts by their definitions: slow, plain, and written without a look at the library.
namespace Plain {

using Text = std::u16string;
using View = std::u16string_view;

enum End { Leading = 1, Trailing = 2, Both = 3, Everywhere = 4 };

Text Stripped(View text, char16_t unit, End end);
Text Replaced(View text, View old, View by);
/// Of a range that may lie anywhere; a negative count means "to the end".
Text Replaced(View text, int start, int count, View by);
Text Part(View text, int start, int count);
int FirstPlace(View text, View sub, int start);
/// -1 when the last one stands before `start`.
int LastPlace(View text, View sub, int start);
bool BeginsWith(View text, View sub);
bool Holds(View text, View anyOf);

/// In the manner of "%d"; nothing when there is no number that an int can hold.
std::optional<int> NumberAtFront(View text);
Text Decimal(int number);

/// UTF-8, where each half of a pair counts as U+FFFD.
std::string Utf8Of(View text);
/// Each byte that is in no well-formed sequence counts as U+FFFD.
Text FromUtf8(std::string_view bytes);
/// The code points; half a pair is one by itself.
std::vector<Text> Characters(View text);
Text LoweredAscii(View text);

} // namespace Plain
