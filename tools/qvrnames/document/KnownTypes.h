#pragma once

#include <string>
#include <vector>

/// Returns the late types in the tables of facts/, and the default types of the objects in a document file. Documents
/// may contain other types.
[[nodiscard]] const std::vector<std::string>& KnownLateTypes();
