#pragma once

#include "document/LoadedDocument.h"
#include "terminal/Terminal.h"

#include <nlohmann/json_fwd.hpp>

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

// The commands. Each returns an ExitCode, and throws BadInput for input that cannot be used.

struct Console {
    std::ostream& out;
    std::ostream& err;
    Screen screen = {};  ///< that `out` leads to
    bool isJson = false; ///< the result is one JSON value on `out`
};

struct CheckRequest {
    std::vector<std::string> names;
    bool areFileNames = false;
};
int CheckNames(const CheckRequest& request, Console console);

struct AuditRequest {
    std::string document;
    bool withDeck = false; ///< the names of the solver deck as well
};
int AuditDocument(const AuditRequest& request, Console console);

int ShowDeck(const std::string& document, Console console);

struct ProposeRequest {
    std::string document;
    std::string feature;
    std::string base;   ///< empty: that of the feature's late type
    bool isJob = false; ///< for a new job, and no feature
};
int ProposeName(const ProposeRequest& request, Console console);

struct RenameRequest {
    std::string document;
    std::string feature;
    std::string name;
    std::string output; ///< empty: the document itself; "-": standard output, and what is told goes to `err`
};
int RenameFeature(const RenameRequest& request, Console console);

/// What the commands have in common.
/// @{

/// The document in the file, or on standard input when the file is "-"; messages about it begin with the
/// file's name.
std::unique_ptr<LoadedDocument> OpenDocument(const std::string& file);
/// FindEntry, for one that can have a name.
std::uint32_t FindFeature(const LoadedDocument& loaded, const std::string& file, const std::string& reference);
void PrintJson(std::ostream& out, const nlohmann::ordered_json& value);
/// BadInput when an argument is no UTF-8.
ZFXUnicodeString ToUnicode(const std::string& argument);
/// @}
