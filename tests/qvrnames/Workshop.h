#pragma once

#include "Run.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

/// A folder for the files of one test, gone with it.
class Workshop {
public:
    Workshop() : m_folder(mkdtemp(m_name)) {}
    Workshop(const Workshop&) = delete;
    Workshop& operator=(const Workshop&) = delete;
    ~Workshop() { std::filesystem::remove_all(m_folder); }

    std::string Path(const std::string& name) const { return (m_folder / name).string(); }
    std::string Write(const std::string& name, const std::string& text) const {
        std::ofstream(Path(name), std::ios::binary) << text;
        return Path(name);
    }
    std::size_t Files() const {
        const std::filesystem::directory_iterator files(m_folder);
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }

private:
    char m_name[32] = "/tmp/qvrnames-test-XXXXXX";
    std::filesystem::path m_folder;
};

inline std::string TextOfFile(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

inline std::string Example(const std::string& name) { return QVRNAMES_FOLDER "/examples/" + name; }

/// What the program does with these arguments.
struct Told {
    int code;
    std::string out;
    std::string err;
};
inline Told RunWith(const std::vector<std::string>& arguments) {
    std::vector<const char*> argv{"qvrnames"};
    for (const std::string& argument : arguments)
        argv.push_back(argument.c_str());
    std::ostringstream out;
    std::ostringstream err;
    const int code = Run(static_cast<int>(argv.size()), argv.data(), out, err);
    return {code, out.str(), err.str()};
}
