#pragma once

#include "Budgets.h"

#include <iosfwd>

/// Prints one row for each budget, and a line with the number of results within their budget.
void PrintTable(std::ostream& out, const std::vector<BudgetResult>& budgetResults);
