#include "base/ZFXSharedLibrary.h"

#ifdef _WIN32

#include <string>

#include <windows.h>

ZFXSharedLibrary::ZFXSharedLibrary(const std::filesystem::path& file) noexcept
    : m_library(LoadLibraryW(file.c_str())) {}

ZFXSharedLibrary::~ZFXSharedLibrary() {
    if (IsLoaded())
        FreeLibrary(static_cast<HMODULE>(m_library));
}

void* ZFXSharedLibrary::Find(const char* function) const noexcept {
    return IsLoaded() ? reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(m_library), function)) : nullptr;
}

bool ZFXSharedLibrary::IsInProcess(const std::filesystem::path& file) noexcept {
    return GetModuleHandleW(file.c_str()) != nullptr;
}

std::filesystem::path ZFXSharedLibrary::FileAt(const void* address) {
    HMODULE library = nullptr;
    if (GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           static_cast<const wchar_t*>(address), &library) == 0)
        return {};
    std::wstring file(MAX_PATH, L'\0');
    for (;;) { // a path that was cut fills the whole room
        const auto length = GetModuleFileNameW(library, file.data(), static_cast<DWORD>(file.size()));
        if (length < file.size())
            return file.substr(0, length);
        file.resize(2 * file.size());
    }
}

#else

#include <dlfcn.h>

ZFXSharedLibrary::ZFXSharedLibrary(const std::filesystem::path& file) noexcept
    : m_library(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {}

ZFXSharedLibrary::~ZFXSharedLibrary() {
    if (IsLoaded())
        dlclose(m_library);
}

void* ZFXSharedLibrary::Find(const char* function) const noexcept {
    return IsLoaded() ? dlsym(m_library, function) : nullptr;
}

bool ZFXSharedLibrary::IsInProcess(const std::filesystem::path& file) noexcept {
    void* const library = dlopen(file.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (library != nullptr)
        dlclose(library); // the reference that asking took
    return library != nullptr;
}

std::filesystem::path ZFXSharedLibrary::FileAt(const void* address) {
    Dl_info info{};
    return dladdr(address, &info) != 0 && info.dli_fname != nullptr ? info.dli_fname : "";
}

#endif
