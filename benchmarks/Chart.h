#pragma once

#include <filesystem>

class Results;

/// Writes an SVG chart of the time of each scan over the size of its scope. Both axes are logarithmic.
void WriteChart(const std::filesystem::path& file, const Results& results);
