#include "commands/CommandLine.h"

#include <cassert>
#include <iostream>
#include <string>
#include <vector>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace {

/// Switches the output streams to unchanged bytes and the console to UTF-8. The console belongs to the shell, so the
/// destructor restores its code page.
class Utf8Output {
public:
    Utf8Output() : m_oldCodePage(GetConsoleOutputCP()) {
        _setmode(_fileno(stdout), _O_BINARY);
        _setmode(_fileno(stderr), _O_BINARY);
        SetConsoleOutputCP(CP_UTF8);
    }
    Utf8Output(const Utf8Output&) = delete;
    Utf8Output& operator=(const Utf8Output&) = delete;
    ~Utf8Output() { SetConsoleOutputCP(m_oldCodePage); }

private:
    UINT m_oldCodePage;
};

std::string ToUtf8(const wchar_t* text) {
    // The size includes the terminating zero.
    const int bytes = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    assert(bytes > 0);
    std::string utf8(static_cast<std::size_t>(bytes), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), bytes, nullptr, nullptr);
    utf8.resize(utf8.size() - 1);
    return utf8;
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the system's name for it
int wmain(int argc, wchar_t** argv) {
    const Utf8Output output;
    const std::vector<wchar_t*> wideArguments(argv, argv + argc);
    std::vector<std::string> arguments;
    for (const wchar_t* argument : wideArguments)
        arguments.push_back(ToUtf8(argument));
    std::vector<const char*> pointers;
    for (const std::string& argument : arguments)
        pointers.push_back(argument.c_str());
    return Run(argc, pointers.data(), std::cout, std::cerr, ScreenOfProcess());
}
