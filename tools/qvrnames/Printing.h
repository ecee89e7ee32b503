#pragma once

#include <nlohmann/json_fwd.hpp>

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

/// The text with its control characters written as \u0009 and the like, so that a name can neither break a
/// line nor steer a terminal.
std::string Printable(std::string_view text);

/// The rows below each other, the columns of every row beside each other; the last column is not filled up.
void PrintTable(std::ostream& out, const std::vector<std::vector<std::string>>& rows);

void PrintJson(std::ostream& out, const nlohmann::ordered_json& value);
