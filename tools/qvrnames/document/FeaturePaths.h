#pragma once

#include "document/LoadedDocument.h"

#include <string>

// How an object of a document is told to people and by them.

/// The names from the case down to the object, such as "Static/Step-1/Pressure-1"; objects without a name in
/// the file are left out.
std::string PathOf(const LoadedDocument& loaded, std::uint32_t entry);
/// The JSON pointer of the object in the file.
std::string PointerOf(const LoadedDocument& loaded, std::uint32_t entry);
/// The path of a named object, the pointer of another.
std::string DisplayPath(const LoadedDocument& loaded, std::uint32_t entry);

/// The object that the reference mean: an id, a JSON pointer (which begins with "/"), a path of names, or the
/// last part of a path when only one ends so. BadInput, with the objects that may be meant, for anything
/// else.
std::uint32_t FindEntry(const LoadedDocument& loaded, const std::string& reference);
