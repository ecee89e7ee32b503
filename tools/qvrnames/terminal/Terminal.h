#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// What standard output leads to.
struct Screen {
    std::size_t columns = 0; ///< of the terminal; 0: no terminal, or one that does not tell
    bool takesColour = false;
};

/// The screen that standard output leads to. Colour is only for a terminal that understands it (TERM is set
/// and not "dumb"), and for none when NO_COLOR is set and not empty.
Screen ScreenOfStandardOutput();

/// What a piece of text stands out by, where colours are taken.
enum class Ink { Plain, Heading, Refusal, Proposal };

/// The text with the ink around it, or as it is for a screen that takes no colour.
std::string Inked(std::string_view text, Ink ink, const Screen& screen);

/// Lets the program end at once and without a word when nobody reads its output any more, even when the
/// program that started it had asked for something else.
void EndWhenNobodyReads();
