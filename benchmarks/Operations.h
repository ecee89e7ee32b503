#pragma once

#include <regex>

/// Registers the operations with the benchmark library, which measures their times.
void RegisterTimes();

/// Runs each operation whose name matches the filter twice and writes a dump of callgrind about the second run. The
/// trigger of the dump is the name of the operation and its number of requests to the document. Returns false if an
/// operation returned false. The process must run under callgrind.
bool WriteInstructionCounts(const std::regex& filter);
