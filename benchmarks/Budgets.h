#pragma once

#include <optional>
#include <string>
#include <vector>

class Results;

/// What a budget says of the measured value.
enum class Rule {
    AtMostTimes, ///< ours is at most so many times the other
    FasterBy,    ///< the other is at least so many times ours
    AtMost,      ///< ours alone, in its own unit
};

/// One row of the table, after a run.
struct Judgement {
    std::string work;
    std::string ours;    ///< a time or an amount with its unit
    std::string against; ///< what it is held against, with its time
    std::string ratio;
    std::string budget;
    bool isHeld;
};

std::vector<Judgement> JudgeBudgets(const Results& results);
bool AreAllHeld(const std::vector<Judgement>& judgements);
