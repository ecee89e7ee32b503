#pragma once

#include "commands/CommandLine.h"

#include "text/Utf8Path.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

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

inline std::string ReadFile(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(Utf8::ToPath(path), std::ios::binary).rdbuf();
    return text.str();
}

/// Writes a file of expected results if the environment contains QVR_WRITE_EXPECTED.
inline void WriteIfRequested(const std::string& path, const std::string& text) {
    if (std::getenv("QVR_WRITE_EXPECTED") != nullptr) // NOLINT(concurrency-mt-unsafe): there is one thread
        std::ofstream(Utf8::ToPath(path), std::ios::binary) << text;
}

inline std::string Example(const std::string& name) { return QVRNAMES_FOLDER "/examples/" + name; }

/// The exit code and output of one run of the program.
struct RunResult {
    int code;
    std::string out;
    std::string err;
};
inline RunResult RunWith(const std::vector<std::string>& arguments, const Screen& screen = {}) {
    std::vector<const char*> argv{"qvrnames"};
    for (const std::string& argument : arguments)
        argv.push_back(argument.c_str());
    std::ostringstream out;
    std::ostringstream err;
    const int code = Run(static_cast<int>(argv.size()), argv.data(), out, err, screen);
    return {code, out.str(), err.str()};
}
