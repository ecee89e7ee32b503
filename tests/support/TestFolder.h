#pragma once

#include "text/Utf8Path.h"

#include <fstream>
#include <random>
#include <string>

/// A temporary folder for the files of one test. Its name contains characters outside every 8-bit code page.
class TestFolder {
public:
    TestFolder() { std::filesystem::create_directory(m_folder); }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder() { std::filesystem::remove_all(m_folder); }

    std::string Path(const std::string& name) const { return Utf8::FromPath(m_folder / name); }
    std::string Write(const std::string& name, const std::string& text) const {
        std::ofstream(Utf8::ToPath(Path(name)), std::ios::binary) << text;
        return Path(name);
    }
    std::size_t Files() const {
        const std::filesystem::directory_iterator files(m_folder);
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }

private:
    const std::filesystem::path m_folder =
        std::filesystem::temp_directory_path() / Utf8::ToPath("Träger-温-" + std::to_string(std::random_device{}()));
};
