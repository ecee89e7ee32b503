#pragma once

#include "document/LoadedDocument.h"

#include <optional>
#include <string>
#include <vector>

// The names that the solver deck would contain for the objects of a document, as a table for each kind of object.

/// An object and its names, one for each column of its section; nothing for a name that it does not have.
struct DeckRow {
    EntryIndex entry;
    std::vector<std::optional<std::string>> names;
};

struct DeckColumn {
    const char* title;
    const char* key; ///< in JSON
    bool isDeckName; ///< the name is written into the deck and must conform to its rules
};

/// The objects of one kind, in document order.
struct DeckSection {
    const char* title; ///< heading of the first column, the object
    const char* key;   ///< in JSON
    bool isPerCase;    ///< each case has its own deck, so objects of different cases may have one name
    std::vector<DeckColumn> columns;
    std::vector<DeckRow> rows;
};

/// Returns all names of the document. Empties the name caches of the naming module before and after, so that the result
/// depends on the document only.
[[nodiscard]] std::vector<DeckSection> BuildDeck(const LoadedDocument& loaded);
