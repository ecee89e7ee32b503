#pragma once

#include "Programs.h"

#include <filesystem>
#include <string>

class Results;

/// Counts the instructions of all operations and programs whose names match the filter, and the requests of the
/// operations. Runs each program, and `benchmarks` with the option --count FILTER, under callgrind. Writes the dumps of
/// callgrind to the folder, which is emptied first.
void CountInstructions(const std::string& benchmarks, const std::string& filter, const Programs& programs,
                       const std::filesystem::path& folder, Results& results);
