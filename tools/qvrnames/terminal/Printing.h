#pragma once

#include <nlohmann/json_fwd.hpp>

#include <iosfwd>
#include <string>
#include <string_view>

/// The text with its control characters written as \u0009 and the like, so that a name can neither break a
/// line nor steer a terminal nor turn the direction of writing around.
std::string Printable(std::string_view text);

void PrintJson(std::ostream& out, const nlohmann::ordered_json& value);
