#pragma once

#include "commands/NameChecks.h"
#include "document/LoadedDocument.h"

#include <map>
#include <string>

/// A name that breaks a rule, and what replaces it.
struct NameFix {
    Verdict verdict; ///< on the former name: the first rule that it breaks
    std::string oldName;
    std::string newName = {};       ///< `oldName` if the name is left, or if it is the first of several that clash
    const char* obstacle = nullptr; ///< a sentence: why the name is left; null if it is not left
};

/// Returns the fixes by entry, for every name that an audit refuses. The document is unchanged.
///
/// With the new names, an audit refuses only the names that are left. Names that it accepts now have no fix.
///
/// Of two names that clash, the first of these remains:
/// - a name that is accepted or left,
/// - a name whose former text is legal,
/// - the first in the file.
///
/// The other name gets the base of the name that remains, in its spelling, and the next number in the case, as
/// QVRNameUtil::GetNextUniqueNames counts. Bases that differ only in letter case are counted together. If the result
/// clashes too, it gets the next number in the document.
///
/// A name is left if
/// - it breaks a rule that is not about its text or a clash, such as "StepParentERR_01";
/// - no character of it is legal, and its type has no base name;
/// - no legal and unique name is found, for example because its late type breaks the rules too.
///
/// Each round of changes takes linear time. There are usually two to five rounds.
[[nodiscard]] std::map<EntryIndex, NameFix> FindFixes(const LoadedDocument& loaded);
