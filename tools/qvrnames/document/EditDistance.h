#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Returns the number of characters to insert, delete, replace or swap with the next one to turn one text into the
/// other. A change of letter case counts as 0.5. Returns `limit` if the number is not smaller.
[[nodiscard]] double EditDistance(std::string_view a, std::string_view b, double limit);

/// Returns the known word that is most similar to another word, or null if none is similar.
[[nodiscard]] const std::string* MostSimilar(std::string_view word, const std::vector<std::string>& known);

/// Returns a hint for an unknown word: "did you mean \"type\"?" if a known word is similar, else the known words.
[[nodiscard]] std::string Suggestion(std::string_view word, const std::vector<std::string>& known);
