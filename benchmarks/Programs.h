#pragma once

#include "Process.h"

#include <filesystem>
#include <string>
#include <vector>

/// A run of a whole program.
struct Program {
    std::string name; ///< of the benchmark
    std::string file; ///< name of the file for its instruction counts
    Command command;
};
using Programs = std::vector<Program>;

/// Writes the documents to the folder. Returns the runs of qvrnames on them, and runs that only load them.
Programs WriteDocuments(const std::filesystem::path& folder);
/// Registers the programs with the benchmark library, which measures their CPU times.
void RegisterTimes(const Programs& programs);
