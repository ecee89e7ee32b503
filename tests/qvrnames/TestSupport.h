#pragma once

#include "commands/CommandLine.h"
#include "support/Results.h"
#include "support/TestFolder.h"

#include "text/Utf8Path.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

inline std::string ReadFile(const std::string& path) { return TextOf(Utf8::ToPath(path)); }

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
