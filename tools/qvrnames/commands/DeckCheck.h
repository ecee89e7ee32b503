#pragma once

#include "commands/Deck.h"
#include "commands/NameChecks.h"

/// Returns the findings in the columns of deck names: names that break a rule of the solver or are used for two
/// objects. The names of these objects may be legal nevertheless, because the deck contains another form of them.
[[nodiscard]] std::vector<Finding> CheckDeck(const std::vector<DeckSection>& deck, const LoadedDocument& loaded);
