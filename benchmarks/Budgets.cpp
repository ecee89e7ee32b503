#include "Budgets.h"

#include "Results.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

enum class Unit { Time, TimePerThousand, TimePerMillion, Blocks, Bytes };

struct Budget {
    const char* work;
    const char* ours; ///< the name of a benchmark
    const char* peer; ///< the name of another; null when ours is judged alone
    const char* peerWords;
    Rule rule;
    double limit;
    Unit unit = Unit::Time;
    Unit peerUnit = Unit::Time;
};

constexpr Rule kAtMostTimes = Rule::AtMostTimes;
constexpr Rule kFasterBy = Rule::FasterBy;
constexpr Rule kAtMost = Rule::AtMost;

constexpr Budget kBudgets[] = {
#include "Budgets.def"
};

double InItsUnit(double value, Unit unit) {
    if (unit == Unit::TimePerThousand)
        return value / 1e3;
    return unit == Unit::TimePerMillion ? value / 1e6 : value;
}

template <class... Values>
std::string Formatted(const char* format, Values... values) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), format, values...);
    return text.data();
}

std::string WithUnit(double value, Unit unit) {
    if (unit == Unit::Blocks)
        return Formatted("%.3g blocks", value);
    if (unit == Unit::Bytes)
        return Formatted("%.0f bytes", value);
    if (value < 1e3)
        return Formatted("%.3g ns", value);
    if (value < 1e6)
        return Formatted("%.3g us", value / 1e3);
    return Formatted("%.3g ms", value / 1e6);
}

std::string BudgetWords(const Budget& budget) {
    if (budget.rule == Rule::AtMost)
        return "at most " + WithUnit(budget.limit, budget.unit);
    return Formatted(budget.rule == Rule::FasterBy ? "%g times faster" : "at most %g", budget.limit);
}

Judgement NotMeasured(const Budget& budget, const std::string& reason) {
    return {budget.work, "not measured", reason, "", BudgetWords(budget), false};
}

Judgement Judge(const Budget& budget, const Results& results) {
    for (const char* name : {budget.ours, budget.peer})
        if (name != nullptr && !results.Value(name))
            return NotMeasured(budget, results.Reason(name));
    const double ours = InItsUnit(*results.Value(budget.ours), budget.unit);
    if (budget.rule == Rule::AtMost)
        return {budget.work, WithUnit(ours, budget.unit), "", "", BudgetWords(budget), ours <= budget.limit};
    const double peer = InItsUnit(*results.Value(budget.peer), budget.peerUnit);
    const std::string against = std::string(budget.peerWords) + ": " + WithUnit(peer, budget.peerUnit);
    const bool isFaster = budget.rule == Rule::FasterBy;
    const double ratio = isFaster ? peer / ours : ours / peer;
    const bool isHeld = isFaster ? ratio >= budget.limit : ratio <= budget.limit;
    return {budget.work, WithUnit(ours, budget.unit), against, Formatted("%.2f", ratio), BudgetWords(budget), isHeld};
}

} // namespace

std::vector<Judgement> JudgeBudgets(const Results& results) {
    std::vector<Judgement> judgements;
    for (const Budget& budget : kBudgets)
        judgements.push_back(Judge(budget, results));
    return judgements;
}

bool AreAllHeld(const std::vector<Judgement>& judgements) {
    return std::all_of(judgements.begin(), judgements.end(), [](const Judgement& row) { return row.isHeld; });
}
