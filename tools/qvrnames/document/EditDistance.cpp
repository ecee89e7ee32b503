#include "document/EditDistance.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace {

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

double SubstitutionCost(char a, char b) { return a == b ? 0 : Lower(a) == Lower(b) ? 0.5 : 1; }

std::string JoinFirst(const std::vector<std::string>& words) {
    constexpr std::size_t kMaxWords = 40;
    std::string list;
    for (std::size_t i = 0; i < std::min(words.size(), kMaxWords); ++i)
        list += (i == 0 ? "" : ", ") + words[i];
    return words.size() > kMaxWords ? list + " and " + std::to_string(words.size() - kMaxWords) + " more" : list;
}

} // namespace

double EditDistance(std::string_view a, std::string_view b, double limit) {
    const auto difference = static_cast<double>(a.size()) - static_cast<double>(b.size());
    if (std::abs(difference) >= limit)
        return limit;
    // Rows of the distance matrix: row[i] is the distance of the first n - 1 characters of a from the first i of b, and
    // former[i] that of the first n - 2.
    std::vector<double> former(b.size() + 1);
    std::vector<double> row(b.size() + 1);
    std::iota(row.begin(), row.end(), 0.0);
    for (std::size_t n = 1; n <= a.size(); ++n) {
        std::vector<double> next(b.size() + 1, static_cast<double>(n));
        for (std::size_t i = 1; i < next.size(); ++i) {
            next[i] = std::min({row[i] + 1, next[i - 1] + 1, row[i - 1] + SubstitutionCost(a[n - 1], b[i - 1])});
            if (n > 1 && i > 1 && a[n - 1] != a[n - 2])
                next[i] = std::min(next[i], former[i - 2] + 1 + SubstitutionCost(a[n - 1], b[i - 2]) +
                                                SubstitutionCost(a[n - 2], b[i - 1]));
        }
        former = std::exchange(row, std::move(next));
    }
    return std::min(row.back(), limit);
}

const std::string* MostSimilar(std::string_view word, const std::vector<std::string>& known) {
    double nearest = 1 + static_cast<double>(word.size()) / 3;
    const std::string* found = nullptr;
    for (const std::string& candidate : known) {
        // An abbreviation is the best match.
        const bool isBeginning = word.size() > 2 && candidate.starts_with(word);
        const double distance = isBeginning ? 0.5 : EditDistance(word, candidate, nearest);
        if (distance >= nearest)
            continue;
        nearest = distance;
        found = &candidate;
    }
    return found;
}

std::string Suggestion(std::string_view word, const std::vector<std::string>& known) {
    const std::string* found = MostSimilar(word, known);
    return found == nullptr ? "known: " + JoinFirst(known) : "did you mean \"" + *found + "\"?";
}
