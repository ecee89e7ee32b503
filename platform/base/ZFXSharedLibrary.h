#pragma once

#include "base/ZFXPlatformExport.h"

#include <filesystem>

/// A shared library that a program loads while it runs, held for as long as this object lives.
class ZFX_PLATFORM_EXPORT ZFXSharedLibrary {
public:
    /// Loads it, or finds it loaded; IsLoaded tells whether that went well.
    explicit ZFXSharedLibrary(const std::filesystem::path& file) noexcept;
    ZFXSharedLibrary(const ZFXSharedLibrary&) = delete;
    ZFXSharedLibrary& operator=(const ZFXSharedLibrary&) = delete;
    ~ZFXSharedLibrary();

    /// Whether it could be loaded.
    bool IsLoaded() const noexcept { return m_library != nullptr; }
    /// The function that the library exports by this name, or null.
    void* Find(const char* function) const noexcept;

    /// Whether the process holds the library, whoever loaded it.
    static bool IsInProcess(const std::filesystem::path& file) noexcept;
    /// The file of the library or program that this address belongs to; empty when the system does not tell.
    static std::filesystem::path FileAt(const void* address);

private:
    void* m_library;
};
