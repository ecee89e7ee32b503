#pragma once

#include <string>
#include <vector>

class Results;

/// One row of the printed table.
struct BudgetResult {
    std::string subject;
    std::string measured = "not measured"; ///< a value with its unit
    std::string reference = {};            ///< name and value of the reference, or the error of a failed benchmark
    std::string ratio = {};
    std::string budget;
    bool isWithinBudget = false;
    std::string time = {};  ///< for information: the time, and its ratio to that of the reference
    std::string floor = {}; ///< for information: the time divided by that of the floor
};

/// Compares the measurements with all budgets, in the order of Budgets.def.
std::vector<BudgetResult> CheckBudgets(const Results& results);
bool AreAllWithinBudget(const std::vector<BudgetResult>& budgetResults);
/// Returns true if a budget compares the instructions of this benchmark with another.
bool AreInstructionsCompared(const std::string& benchmark);
