#pragma once

#include "commands/DocumentFiles.h"
#include "document/JsonText.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

// The results of an audit, independent of the format in which they are printed.

/// An object in a document, as a report shows it.
struct ObjectReference {
    std::string path;      ///< of names, or the JSON pointer of an unnamed object
    std::string pointer;   ///< the JSON pointer
    TextPosition position; ///< of its name in the file
};

/// A Finding, or an unknown late type, as a report shows it.
struct ReportedFinding {
    ObjectReference object;
    std::string rule; ///< see Rule::id
    std::string lateType;
    std::string name;
    std::string message;
    std::string deckColumn = {}; ///< the column of a name in the deck; empty for the name of the feature
    std::optional<ObjectReference> other = {};
};

/// The result for one document. Each list is in the order of the positions in the file.
struct DocumentReport {
    std::string file;                             ///< its path, with U+FFFD for each byte that is not UTF-8
    std::string error = {};                       ///< why the document is unusable; empty if it was audited
    std::size_t checked = 0;                      ///< number of features
    std::vector<ReportedFinding> refusals = {};   ///< names of features that break a rule
    std::vector<ReportedFinding> deckFaults = {}; ///< names in the deck that break a rule or clash
    std::vector<ReportedFinding> warnings = {};   ///< unknown late types, and characters with a meaning in the deck
};

/// Audits a document. If it is unusable, the report contains only the file and the error.
[[nodiscard]] DocumentReport AuditFile(const DocumentFile& file, bool withDeck);

/// Returns the position of the name in the file: "LINE:COLUMN".
[[nodiscard]] std::string PositionOf(const ReportedFinding& finding);

/// Returns the findings that make the audit of a document fail: refusals, deck faults and, if `isStrict`, warnings.
/// They are in the order of their positions in the file.
[[nodiscard]] std::vector<const ReportedFinding*> FindingsOf(const DocumentReport& report, bool isStrict);

/// Returns true for a finding that is a warning unless the audit is strict.
[[nodiscard]] bool IsWarning(const ReportedFinding& finding);

/// Returns the name in quotes and, for a name in the deck, its column; for an unknown late type, the type in quotes.
[[nodiscard]] std::string SubjectOf(const ReportedFinding& finding);
/// Returns the message with the subject in front of it, unless the message contains the subject.
[[nodiscard]] std::string TextOf(const ReportedFinding& finding);
