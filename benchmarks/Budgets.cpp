#include "Budgets.h"

#include "Repeated.h"
#include "Results.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

/// How a measurement is compared with its limit.
enum class Rule {
    Instructions, ///< instructions / instructions of the reference <= limit
    RequestLoop,  ///< as Instructions, and both make an equal number of requests to the document
    Time,         ///< time / time of the reference <= limit
    FasterBy,     ///< time of the reference / time >= limit
    AtMostTime,   ///< time <= limit
    AtMostBlocks, ///< heap blocks <= limit
    AtMostBytes   ///< heap bytes <= limit
};

struct Budget {
    const char* subject;
    const char* benchmark;
    const char* reference; ///< another benchmark; null if there is none
    const char* referenceLabel;
    Rule rule;
    double limit;
    double calls = 1;            ///< values are divided by this number of calls or names in one operation
    double referenceCalls = 1;   ///< the number for the reference
    const char* floor = nullptr; ///< a benchmark whose time is compared for information
};

constexpr Budget kBudgets[] = {
#define ROW(...) {__VA_ARGS__},
#include "Budgets.def"
#undef ROW
};

bool IsCounted(Rule rule) { return rule == Rule::Instructions || rule == Rule::RequestLoop; }

Quantity QuantityOf(Rule rule) {
    if (rule == Rule::AtMostBlocks)
        return Quantity::Blocks;
    if (rule == Rule::AtMostBytes)
        return Quantity::Bytes;
    return IsCounted(rule) ? Quantity::Instructions : Quantity::Time;
}

template <class... Values>
std::string Formatted(const char* format, Values... values) {
    std::array<char, 96> text{};
    std::snprintf(text.data(), text.size(), format, values...);
    return text.data();
}

std::string WithUnit(double value, Quantity quantity) {
    if (quantity == Quantity::Blocks)
        return Formatted("%.3g blocks", value);
    if (quantity == Quantity::Bytes)
        return Formatted("%.0f bytes", value);
    const bool isTime = quantity == Quantity::Time;
    if (value < 1e3)
        return Formatted(isTime ? "%.3g ns" : "%.4g instr", value);
    if (value < 1e6)
        return Formatted(isTime ? "%.3g us" : "%.4g k instr", value / 1e3);
    return Formatted(isTime ? "%.3g ms" : "%.4g M instr", value / 1e6);
}

/// The measurements of one benchmark, for each of its calls.
struct Measurement {
    std::optional<double> value;
    std::optional<double> time;
    std::string text = {}; ///< the value with its unit; for times with the spread
};

Measurement MeasurementOf(const Results& results, const char* benchmark, Quantity quantity, double calls) {
    const auto perCall = [&](Quantity wanted) {
        std::optional<double> value = results.Value(wanted, benchmark);
        if (value)
            *value /= calls;
        return value;
    };
    Measurement measurement{perCall(quantity), perCall(Quantity::Time)};
    if (!measurement.value)
        return measurement;
    measurement.text = WithUnit(*measurement.value, quantity);
    if (quantity == Quantity::Time)
        measurement.text += Formatted(" +-%.0f %%", 100 * results.Value(Quantity::Spread, benchmark).value_or(0));
    return measurement;
}

BudgetResult Check(const Budget& budget, const Results& results) {
    const Quantity quantity = QuantityOf(budget.rule);
    const bool isFaster = budget.rule == Rule::FasterBy;
    const Measurement measured = MeasurementOf(results, budget.benchmark, quantity, budget.calls);
    BudgetResult row{.subject = budget.subject,
                     .budget = budget.reference == nullptr
                                   ? "at most " + WithUnit(budget.limit, quantity)
                                   : Formatted(isFaster ? "%g times faster" : "at most %g", budget.limit)};
    row.reference = results.Error(budget.benchmark);
    if (!measured.value)
        return row;
    if (budget.reference == nullptr) {
        row.measured = measured.text;
        row.isWithinBudget = *measured.value <= budget.limit;
        return row;
    }
    const Measurement reference = MeasurementOf(results, budget.reference, quantity, budget.referenceCalls);
    row.reference = results.Error(budget.reference);
    if (!reference.value)
        return row;
    row.measured = measured.text;
    row.reference = std::string(budget.referenceLabel) + ": " + reference.text;
    const double ratio = isFaster ? *reference.value / *measured.value : *measured.value / *reference.value;
    row.ratio = Formatted("%.2f", ratio);
    row.isWithinBudget = isFaster ? ratio >= budget.limit : ratio <= budget.limit;
    if (IsCounted(budget.rule) && measured.time && reference.time)
        row.time = WithUnit(*measured.time, Quantity::Time) + Formatted(" (%.2f)", *measured.time / *reference.time);
    const auto floor = results.Value(Quantity::Time, budget.floor == nullptr ? "" : budget.floor);
    if (floor && measured.time)
        row.floor = Formatted("%.2f", *measured.time / *floor);
    if (budget.rule == Rule::RequestLoop) {
        const double requests = results.Value(Quantity::Requests, budget.benchmark).value_or(0);
        const double ofReference = results.Value(Quantity::Requests, budget.reference).value_or(0);
        row.isWithinBudget = row.isWithinBudget && requests == ofReference;
        if (requests != ofReference)
            row.reference += Formatted("; %.0f requests instead of %.0f", requests, ofReference);
    }
    return row;
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

bool AreInstructionsCompared(const std::string& benchmark) {
    return std::any_of(std::begin(kBudgets), std::end(kBudgets), [&](const Budget& budget) {
        return IsCounted(budget.rule) && (benchmark == budget.benchmark || benchmark == budget.reference);
    });
}
