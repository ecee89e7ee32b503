#include "terminal/Terminal.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

#ifdef _WIN32
#include <windows.h>

#include <io.h>
#else
#include <csignal>

#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace {

std::string_view Environment(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string_view() : value;
}

#ifdef _WIN32

bool IsTerminal(std::FILE* file) { return _isatty(_fileno(file)) != 0; }

std::size_t Columns() {
    CONSOLE_SCREEN_BUFFER_INFO info{};
    if (GetConsoleScreenBufferInfo(GetStdHandle(STD_OUTPUT_HANDLE), &info) == 0)
        return 0;
    return static_cast<std::size_t>(info.srWindow.Right - info.srWindow.Left + 1);
}

/// Switches on the processing of escape sequences, which a console does not do by default.
bool SupportsColour() {
    const HANDLE console = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD mode = 0;
    return GetConsoleMode(console, &mode) != 0 &&
           SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

#else

bool IsTerminal(std::FILE* file) { return isatty(fileno(file)) == 1; }

std::size_t Columns() {
    winsize size{};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0U;
}

bool SupportsColour() { return !Environment("TERM").empty() && Environment("TERM") != "dumb"; }

#endif

} // namespace

Screen ScreenOfProcess() {
    const bool canShowProgress = IsTerminal(stderr) && Environment("TERM") != "dumb";
    if (!IsTerminal(stdout))
        return {.canShowProgress = canShowProgress};
    return {Columns(), Environment("NO_COLOR").empty() && SupportsColour(), canShowProgress};
}

std::string Styled(std::string_view text, Style style, const Screen& screen) {
    // In the order of Style.
    static constexpr const char* kSequences[] = {"", "\x1B[1m", "\x1B[31m", "\x1B[32m"};
    if (!screen.hasColour || style == Style::Plain)
        return std::string(text);
    return kSequences[static_cast<int>(style)] + std::string(text) + "\x1B[0m";
}

void EndOnBrokenPipe() {
#ifndef _WIN32
    std::signal(SIGPIPE, SIG_DFL);
#endif
}
