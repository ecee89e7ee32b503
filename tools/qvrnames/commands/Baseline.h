#pragma once

#include "commands/AuditReport.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

/// A file of known findings, which an audit ignores. A finding is identified by its document, feature, name and rule,
/// so that changes of other parts of the document do not matter.
class Baseline {
public:
    /// Reads the file. Throws BadInput if it is not a baseline.
    explicit Baseline(const std::string& file);
    /// Throws BadInput if Write would replace a file that is not a baseline, such as a document.
    static void CheckReplaceable(const std::string& file);
    /// Writes all findings of the reports, warnings included. Throws BadInput if the file cannot be written.
    static void Write(const std::string& file, const std::vector<DocumentReport>& reports);

    /// Removes the known findings from a report. Each entry of the file removes one finding.
    void RemoveKnown(DocumentReport& report);
    /// Returns a description of each entry that was not found in its document, if this was audited or does not exist.
    [[nodiscard]] std::vector<std::string> Outdated(const std::vector<DocumentReport>& reports) const;

private:
    std::map<nlohmann::json, std::size_t> m_unused; // by entry: the findings that may still be removed
};
