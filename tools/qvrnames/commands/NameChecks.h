#pragma once

#include "document/LoadedDocument.h"

#include "QVRNameFinding.h"
#include "base/ZFXResult.h"
#include "text/ZFXUnicodeString.h"

#include <optional>
#include <string>

/// The result of a check of a name.
struct Verdict {
    bool isRefused = false;
    std::string rule;                     ///< the broken rule, see Rule::id; empty if the name is accepted
    std::string message;                  ///< why the name is refused; empty if it is accepted
    std::optional<EntryIndex> other = {}; ///< the entry of the object that the name clashes with
};

/// A rule that the name of an object breaks.
struct Finding {
    EntryIndex entry;
    std::string name;
    Verdict verdict;
    std::string deckColumn = {}; ///< the column of a name in the deck; empty for the name of the feature
};

/// Returns the verdict for the code of an operation and the error registered under that code. If none is registered,
/// the rule is kRequestFailed, and the message names the operation, the code and `requirement`. Must be called before
/// the next operation, which may register further errors.
/// @param requirement  a sentence: what the operation needs to succeed
[[nodiscard]] Verdict VerdictOf(HRESULT code, const char* operation, const char* requirement);

/// Checks the text of a name: its length, its first character and its characters. No feature is involved.
[[nodiscard]] Verdict CheckText(const ZFXUnicodeString& name);
/// Checks the characters of a file name.
[[nodiscard]] Verdict CheckFileName(const ZFXUnicodeString& name);

/// Makes the checks of an audit for a new name of an entry, without the spaces and underscores that are removed when it
/// is stored. Returns the first broken rule. The entry has its former name afterwards.
[[nodiscard]] Verdict CheckNewName(const LoadedDocument& loaded, EntryIndex entry, const ZFXUnicodeString& name);
/// Checks the stored names of the named entries. Returns the findings in document order.
[[nodiscard]] ZFXListVal<QVRNameFinding> CheckStoredNames(const LoadedDocument& loaded);
/// Returns the verdict for a finding of the naming module.
[[nodiscard]] Verdict VerdictOf(const QVRNameFinding& finding, const EntriesByObject& entries);
