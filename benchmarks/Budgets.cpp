#include "Budgets.h"

#include "Results.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

enum class Unit { Time, TimePerThousand, TimePerMillion, Blocks, Bytes };

struct Budget {
    const char* subject;
    const char* benchmark;
    const char* reference; ///< another benchmark; null for AtMostValue
    const char* referenceLabel;
    Rule rule;
    double limit;
    Unit unit = Unit::Time;
    Unit referenceUnit = Unit::Time;
};

constexpr Rule kAtMostRatio = Rule::AtMostRatio;
constexpr Rule kFasterBy = Rule::FasterBy;
constexpr Rule kAtMostValue = Rule::AtMostValue;

constexpr Budget kBudgets[] = {
#include "Budgets.def"
};

/// Converts the time of a batch to the time per name. Returns all other values unchanged.
double PerName(double value, Unit unit) {
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

std::string LimitText(const Budget& budget) {
    if (budget.rule == Rule::AtMostValue)
        return "at most " + WithUnit(budget.limit, budget.unit);
    return Formatted(budget.rule == Rule::FasterBy ? "%g times faster" : "at most %g", budget.limit);
}

BudgetResult NotMeasured(const Budget& budget, const std::string& error) {
    return {budget.subject, "not measured", error, "", LimitText(budget), false};
}

BudgetResult Check(const Budget& budget, const Results& results) {
    for (const char* name : {budget.benchmark, budget.reference})
        if (name != nullptr && !results.Value(name))
            return NotMeasured(budget, results.Error(name));
    const double value = PerName(*results.Value(budget.benchmark), budget.unit);
    const std::string measured = WithUnit(value, budget.unit);
    if (budget.rule == Rule::AtMostValue)
        return {budget.subject, measured, "", "", LimitText(budget), value <= budget.limit};
    const double referenceValue = PerName(*results.Value(budget.reference), budget.referenceUnit);
    const std::string reference =
        std::string(budget.referenceLabel) + ": " + WithUnit(referenceValue, budget.referenceUnit);
    const bool isFaster = budget.rule == Rule::FasterBy;
    const double ratio = isFaster ? referenceValue / value : value / referenceValue;
    const bool isWithinBudget = isFaster ? ratio >= budget.limit : ratio <= budget.limit;
    return {budget.subject, measured, reference, Formatted("%.2f", ratio), LimitText(budget), isWithinBudget};
}

} // namespace

std::vector<BudgetResult> CheckBudgets(const Results& results) {
    std::vector<BudgetResult> budgetResults;
    for (const Budget& budget : kBudgets)
        budgetResults.push_back(Check(budget, results));
    return budgetResults;
}

bool AreAllWithinBudget(const std::vector<BudgetResult>& budgetResults) {
    return std::all_of(budgetResults.begin(), budgetResults.end(),
                       [](const BudgetResult& row) { return row.isWithinBudget; });
}
