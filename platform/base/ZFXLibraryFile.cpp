#include "base/ZFXLibraryFile.h"

#ifdef _WIN32

#include <string>

#include <windows.h>

std::filesystem::path ZFXLibraryFileAt(const void* address) {
    HMODULE library = nullptr;
    if (GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           static_cast<const wchar_t*>(address), &library) == 0)
        return {};
    std::wstring file(MAX_PATH, L'\0');
    for (;;) { // the buffer grows until the path does not fill it
        const auto length = GetModuleFileNameW(library, file.data(), static_cast<DWORD>(file.size()));
        if (length < file.size())
            return file.substr(0, length);
        file.resize(2 * file.size());
    }
}

#else

#include <dlfcn.h>

std::filesystem::path ZFXLibraryFileAt(const void* address) {
    Dl_info info{};
    return dladdr(address, &info) != 0 && info.dli_fname != nullptr ? info.dli_fname : "";
}

#endif
