#pragma once

#include "ExitCode.h"
#include "files/WholeFile.h"

#include <string>

[[noreturn]] inline void RefuseFile(const std::string& path, const std::string& action, const std::string& reason) {
    throw BadInput(FileForPeople(path) + ": cannot be " + action + ": " + reason);
}

[[noreturn]] inline void RefuseSize(const std::string& path) {
    throw BadInput(FileForPeople(path) + ": larger than " + std::to_string(kLargestDocument >> 20) +
                   " MB, which is the largest document that is read");
}
