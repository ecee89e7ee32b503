#pragma once

#include <string>
#include <vector>

// Rules without a message in the catalog.
inline constexpr const char* kRequestFailed = "RequestFailed";         ///< a request failed without an error object
inline constexpr const char* kDuplicateDeckName = "DuplicateDeckName"; ///< two objects have one name in the deck
inline constexpr const char* kDeckCharacter = "DeckCharacter";         ///< a character with a meaning in the deck
inline constexpr const char* kUnknownType = "UnknownLateType";         ///< an unknown late type, see KnownLateTypes

/// A rule of findings. The texts of messages are in the language that is set, those of the other rules in English.
struct Rule {
    std::string id;    ///< a message id, or one of the constants above
    std::string cause; ///< with "..." for a parameter
    std::string example;
    std::string fix;
    std::string operations; ///< the operations of the library that raise the message, separated by ", "; or empty
};

/// Returns the messages in the order of MessageIds.def, then the other rules.
[[nodiscard]] std::vector<Rule> AllRules();
