#pragma once

#include "BadInput.h"
#include "ExitCode.h"
#include "commands/NameChecks.h"
#include "document/LoadedDocument.h"
#include "terminal/Terminal.h"

#include <nlohmann/json_fwd.hpp>

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

// The commands, which CommandLine.cpp calls. Each is defined in the source of its name, such as CheckCommand.cpp,
// returns an ExitCode, and throws BadInput for unusable input.

struct Console {
    std::ostream& out;
    std::ostream& err;
    Screen screen = {};  ///< the terminals, if any, of `out` and `err`
    bool isJson = false; ///< print the result as one JSON value

    /// Returns a console that prints the result on `err`, without colours.
    Console OnStandardError() const { return {err, err, {}, isJson}; }
};

struct CheckRequest {
    std::vector<std::string> names; ///< "-": the names on standard input, one per line
    std::string from;               ///< a file with further names, one per line; empty: none
    bool areFileNames = false;
};
int CheckNames(const CheckRequest& request, Console console);

struct AuditRequest {
    std::vector<std::string> documents; ///< files, folders with files "*.json" at any depth, or "-"
    bool withDeck = false;              ///< also check the names in the solver deck
    bool isStrict = false;              ///< a warning is a finding
    bool isSummary = false;             ///< print the number of findings by rule instead of the findings
    std::string baseline;               ///< a file of findings to ignore; empty: none
    std::string newBaseline;            ///< the file to write all findings to; empty: none
    std::string format;                 ///< "text", "json", "sarif" or "junit"; empty: that of the console
};
/// Audits the documents in the order of the arguments. Returns
/// - kBadInput if a document is unusable;
/// - kRefused if there are findings that are neither ignored nor written to `newBaseline`;
/// - kSuccess otherwise.
int AuditDocuments(AuditRequest request, Console console);

int ShowDeck(const std::string& document, Console console);

struct ProposeRequest {
    std::string document;
    std::string feature;
    std::string base;   ///< empty: the base name of the feature's late type
    bool isJob = false; ///< propose the name of a new job; `feature` and `base` must be empty
};
int ProposeName(const ProposeRequest& request, Console console);

struct RenameRequest {
    std::string document;
    std::string feature;
    std::string name;
    bool force = false; ///< store a name that breaks a rule, if features of the type accept any name
    std::string output; ///< a file; "-": standard output, with messages on `err`; empty: the file of `document`
};
int RenameFeature(const RenameRequest& request, Console console);

struct FixRequest {
    std::string document;
    bool write = false; ///< replace the file, or write the document to standard output if it was read from a pipe
};
int FixNames(const FixRequest& request, Console console);

/// Prints the cause of a message or rule, an example, and the fix. Lists all messages and rules if `id` is empty.
int ExplainRule(const std::string& id, Console console);

struct ImportRequest {
    std::string table;  ///< a file with comma-separated values, or "-"
    std::string output; ///< a file; empty or "-": standard output
};
/// Makes a document file from a table of names.
int ImportTable(const ImportRequest& request, Console console);

// Helpers of the commands, defined in Commands.cpp.

/// Reads the document in a file, or on standard input if `file` is "-". Messages of BadInput begin with the file name.
[[nodiscard]] std::unique_ptr<LoadedDocument> OpenDocument(const std::string& file);
/// Locks the file of a document until the returned object is destroyed. Prints a line on `err` if it has to wait for
/// another process.
[[nodiscard]] std::shared_ptr<void> LockDocument(const std::string& file, Console console);
/// Returns the object to which a FEATURE argument leads; it may have no name. Throws BadInput if there is none, if
/// there are several, or if it is the analysis model, which cannot have a name.
/// @param file  the document, for messages
[[nodiscard]] EntryIndex FindFeature(const LoadedDocument& loaded, const std::string& file,
                                     const std::string& reference);
/// Writes a changed document to a file, or to standard output if `target` is "-". Throws BadInput on failure.
/// @param model  the file whose permissions a new file gets
void WriteDocument(const std::string& bytes, const std::string& target, const std::string& model, Console console);
/// Converts an argument. Throws BadInput if it is not UTF-8.
[[nodiscard]] ZFXUnicodeString ToUnicode(const std::string& argument);
/// Returns the message of a refusal and, for a clash, the other feature.
[[nodiscard]] std::string ReasonOf(const LoadedDocument& loaded, const Verdict& verdict);
/// Adds the message of a refusal, its id and, for a clash, the other feature to a JSON object.
void AddVerdict(nlohmann::ordered_json& json, const LoadedDocument& loaded, const Verdict& verdict);
/// Returns "1 feature", "2 features".
[[nodiscard]] std::string Counted(std::size_t count, const std::string& noun);
void PrintJson(std::ostream& out, const nlohmann::ordered_json& value);
