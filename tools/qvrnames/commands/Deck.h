#pragma once

#include "commands/NameChecks.h"
#include "document/LoadedDocument.h"

#include <optional>
#include <string>
#include <vector>

// What the solver deck would call everything in a document.

/// One object and its names, one for each column of its section; nothing where there is none.
struct DeckRow {
    std::uint32_t entry;
    std::vector<std::optional<std::string>> names;
};

struct DeckColumn {
    const char* title;
    const char* key; ///< in JSON
    bool isDeckName; ///< written into the deck, and so bound to its rules
};

/// The objects of one kind, in document order.
struct DeckSection {
    const char* title; ///< of the objects' column
    const char* key;
    std::vector<DeckColumn> columns;
    std::vector<DeckRow> rows;
};

/// Works out every name, on name caches that are empty before and after.
std::vector<DeckSection> BuildDeck(const LoadedDocument& loaded);

/// A name that the rules let through although the solver cannot take it, or cannot tell it from another.
struct DeckFinding {
    std::uint32_t entry;
    std::string column;
    std::string name;
    Verdict verdict;
};
std::vector<DeckFinding> CheckDeck(const std::vector<DeckSection>& deck, const LoadedDocument& loaded);
