#pragma once

#include "commands/NameChecks.h"
#include "document/LoadedDocument.h"

#include <optional>
#include <string>
#include <vector>

// The names that the solver deck would contain for the objects of a document, as a table for each kind of object.

/// An object and its names, one for each column of its section; nothing for a name that it does not have.
struct DeckRow {
    std::uint32_t entry;
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
    std::vector<DeckColumn> columns;
    std::vector<DeckRow> rows;
};

/// Returns all names of the document. Empties the name caches of the naming module before and after, so that the result
/// depends on the document only.
[[nodiscard]] std::vector<DeckSection> BuildDeck(const LoadedDocument& loaded);

/// A rule that the name of an object breaks.
struct Finding {
    std::uint32_t entry;
    std::string name;
    Verdict verdict;
    std::string deckColumn = {}; ///< the column of a name in the deck; empty for the name of the feature
};

/// Returns the findings in the columns of deck names: names that break a rule of the solver or are used for two
/// objects. The names of these objects may be legal nevertheless, because the deck contains another form of them.
[[nodiscard]] std::vector<Finding> CheckDeck(const std::vector<DeckSection>& deck, const LoadedDocument& loaded);
