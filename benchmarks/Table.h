#pragma once

#include "Budgets.h"

#include <iosfwd>

/// One row a budget, and a line that sums them up.
void PrintTable(std::ostream& out, const std::vector<Judgement>& judgements);
