#pragma once

#include <filesystem>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

/// Loads a shared library, and unloads it when the object is destroyed.
class LoadedLibrary {
#ifdef _WIN32
    using Handle = HMODULE;
    static Handle Load(const std::filesystem::path& file) { return LoadLibraryW(file.c_str()); }
    static Handle LoadAgain(const std::filesystem::path& file) {
        return GetModuleHandleW(file.c_str()) == nullptr ? nullptr : Load(file);
    }
    static void Unload(Handle library) { FreeLibrary(library); }
    static void* Symbol(Handle library, const char* name) {
        return reinterpret_cast<void*>(GetProcAddress(library, name));
    }
#else
    using Handle = void*;
    static Handle Load(const std::filesystem::path& file) { return dlopen(file.c_str(), RTLD_NOW); }
    static Handle LoadAgain(const std::filesystem::path& file) { return dlopen(file.c_str(), RTLD_NOW | RTLD_NOLOAD); }
    static void Unload(Handle library) { dlclose(library); }
    static void* Symbol(Handle library, const char* name) { return dlsym(library, name); }
#endif

public:
    explicit LoadedLibrary(const std::filesystem::path& file) : LoadedLibrary(Load(file)) {}
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;
    ~LoadedLibrary() {
        if (IsLoaded())
            Unload(m_library);
    }

    bool IsLoaded() const { return m_library != nullptr; }
    /// Returns the exported function of this name, or null.
    template <class Function>
    Function* Find(const char* name) const {
        return reinterpret_cast<Function*>(Symbol(m_library, name));
    }

    /// Returns true if the process has loaded the library, through an object of this class or otherwise.
    static bool IsInProcess(const std::filesystem::path& file) { return LoadedLibrary(LoadAgain(file)).IsLoaded(); }

private:
    explicit LoadedLibrary(Handle library) : m_library(library) {}

    Handle m_library;
};
