#include "Nearest.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace {

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

double Change(char a, char b) { return a == b ? 0 : Lower(a) == Lower(b) ? 0.5 : 1; }

std::string Listed(const std::vector<std::string>& words) {
    constexpr std::size_t kMost = 40;
    std::string list;
    for (std::size_t i = 0; i < std::min(words.size(), kMost); ++i)
        list += (i == 0 ? "" : ", ") + words[i];
    return words.size() > kMost ? list + " and " + std::to_string(words.size() - kMost) + " more" : list;
}

} // namespace

double EditDistance(std::string_view a, std::string_view b, double limit) {
    const auto difference = static_cast<double>(a.size()) - static_cast<double>(b.size());
    if (std::abs(difference) >= limit)
        return limit;
    std::vector<double> row(b.size() + 1);
    std::iota(row.begin(), row.end(), 0.0);
    for (const char c : a) {
        double diagonal = row[0]++;
        for (std::size_t i = 1; i < row.size(); ++i) {
            const double best = std::min({row[i] + 1, row[i - 1] + 1, diagonal + Change(c, b[i - 1])});
            diagonal = std::exchange(row[i], best);
        }
    }
    return std::min(row.back(), limit);
}

std::string Suggestion(std::string_view word, const std::vector<std::string>& known) {
    double nearest = 1 + static_cast<double>(word.size()) / 3;
    const std::string* found = nullptr;
    for (const std::string& candidate : known) {
        const double distance = EditDistance(word, candidate, nearest);
        if (distance >= nearest)
            continue;
        nearest = distance;
        found = &candidate;
    }
    return found == nullptr ? "known: " + Listed(known) : "did you mean \"" + *found + "\"?";
}
