#pragma once

#include <string>
#include <vector>

/// Returns the late types that the library knows: those of the tables in facts/, and the default types of the objects
/// in a document file. Documents may contain others.
[[nodiscard]] const std::vector<std::string>& KnownLateTypes();
