#include "commands/CommandLine.h"

#include <iostream>
#include <string>
#include <vector>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace {

/// UTF-8 as it is written, also on a console, and lines that end as everywhere else. The console is the shell's own
/// and gets its code page back.
class Utf8Output {
public:
    Utf8Output() : m_former(GetConsoleOutputCP()) {
        _setmode(_fileno(stdout), _O_BINARY);
        _setmode(_fileno(stderr), _O_BINARY);
        SetConsoleOutputCP(CP_UTF8);
    }
    Utf8Output(const Utf8Output&) = delete;
    Utf8Output& operator=(const Utf8Output&) = delete;
    ~Utf8Output() { SetConsoleOutputCP(m_former); }

private:
    UINT m_former;
};

std::string Utf8Of(const wchar_t* text) {
    const int bytes = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr); // with the final zero
    std::string utf8(static_cast<std::size_t>(bytes), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), bytes, nullptr, nullptr);
    utf8.resize(utf8.size() - 1);
    return utf8;
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the system's name for it
int wmain(int argc, wchar_t** argv) {
    const Utf8Output output;
    const std::vector<wchar_t*> given(argv, argv + argc);
    std::vector<std::string> arguments;
    for (const wchar_t* argument : given)
        arguments.push_back(Utf8Of(argument));
    std::vector<const char*> pointers;
    for (const std::string& argument : arguments)
        pointers.push_back(argument.c_str());
    return Run(argc, pointers.data(), std::cout, std::cerr, ScreenOfStandardOutput());
}
