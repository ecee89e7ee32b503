#pragma once

#include <optional>
#include <string>
#include <vector>

class Results;

/// How a measurement is compared with its limit.
enum class Rule {
    AtMostRatio, ///< measurement / reference <= limit
    FasterBy,    ///< reference / measurement >= limit
    AtMostValue, ///< measurement <= limit; there is no reference
};

/// One row of the printed table.
struct BudgetResult {
    std::string subject;
    std::string measured;  ///< a value with its unit, or "not measured"
    std::string reference; ///< name and value of the reference, or the error of a failed benchmark
    std::string ratio;
    std::string budget;
    bool isWithinBudget; ///< false also if a value is missing
};

/// Compares the measurements with all budgets, in the order of Budgets.def.
std::vector<BudgetResult> CheckBudgets(const Results& results);
bool AreAllWithinBudget(const std::vector<BudgetResult>& budgetResults);
