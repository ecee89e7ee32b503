#pragma once

#include <string>
#include <string_view>
#include <vector>

/// How many characters must be put in, left out, changed or swapped with the next to make one text the other;
/// letter case counts as half a change. Anything from `limit` on is answered as `limit`.
double EditDistance(std::string_view a, std::string_view b, double limit);

/// What to tell about a word that is not known: "did you mean \"type\"?", or the words that are.
std::string Suggestion(std::string_view word, const std::vector<std::string>& known);
