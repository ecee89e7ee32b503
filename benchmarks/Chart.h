#pragma once

#include <filesystem>

class Results;

/// The cost of the scans against the size of their scope, both axes logarithmic, as an SVG.
void WriteChart(const std::filesystem::path& file, const Results& results);
