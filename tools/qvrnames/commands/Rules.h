#pragma once

#include <string>
#include <vector>

/// A rule of findings: a message id, or one of the rules in AuditReport.h. Texts of messages are in the language that
/// is set, those of the other rules in English.
struct Rule {
    std::string id;
    std::string cause; ///< with "..." for a parameter
    std::string example;
    std::string fix;
    std::string operations; ///< the operations of the library that raise the message, separated by ", "; or empty
};

/// Returns the messages in the order of MessageIds.def, then the rules of AuditReport.h.
[[nodiscard]] std::vector<Rule> AllRules();
