#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The properties of the terminals, if any, to which standard output and standard error are connected.
struct Screen {
    std::size_t columns = 0;      ///< of standard output; 0 if it is no terminal or its width is unknown
    bool hasColour = false;       ///< standard output shows the escape sequences of a Style
    bool canShowProgress = false; ///< standard error is a terminal that can show progress
};

/// Returns the screen of the process. Colour is used on a terminal that supports it (TERM is set and not "dumb"),
/// unless NO_COLOR is set and not empty.
[[nodiscard]] Screen ScreenOfProcess();

/// How a piece of text is emphasised.
enum class Style { Plain, Heading, Refusal, Proposal };

/// Returns the text between the escape sequences of the style, or the text alone if the screen has no colour.
[[nodiscard]] std::string Styled(std::string_view text, Style style, const Screen& screen);

/// Makes the program end silently when its output is a closed pipe, even if its parent process ignores SIGPIPE.
void EndOnBrokenPipe();
