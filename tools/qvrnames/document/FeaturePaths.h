#pragma once

#include "document/LoadedDocument.h"

#include <string>

// Formats and parses references to objects of a document.

/// Returns the names from the case down to the object, such as "Static/Step-1/Pressure-1". Objects without a name in
/// the file are skipped.
[[nodiscard]] std::string PathOf(const LoadedDocument& loaded, EntryIndex entry);
/// Returns the JSON pointer of the object in the file.
[[nodiscard]] std::string PointerOf(const LoadedDocument& loaded, EntryIndex entry);
/// Returns the path of a named object. If it is unnamed, or if its path looks like a JSON pointer because a name begins
/// with "/", returns its JSON pointer. FindEntry finds the object by either, unless several have the same path.
[[nodiscard]] std::string DisplayPath(const LoadedDocument& loaded, EntryIndex entry);

/// Returns the object, named or not, to which a reference leads. The reference is, in this order: an id; a JSON
/// pointer, which begins with "/"; a path; the last part of a path, if only one path ends with it. Throws BadInput with
/// a list of candidates if there is no such object or if there are several.
[[nodiscard]] EntryIndex FindEntry(const LoadedDocument& loaded, const std::string& reference);
