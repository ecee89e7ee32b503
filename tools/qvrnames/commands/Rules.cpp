#include "commands/Rules.h"

#include "errors/MessageCatalog.h"

namespace {

struct MessageRow {
    const char* id;
    const char* operations;
};

constexpr MessageRow kMessages[] = {
#define MESSAGE_ID(id, raisedBy) {#id, raisedBy},
#include "MessageIds.def"
#undef MESSAGE_ID
};

struct RuleRow {
    const char* id;
    const char* cause;
    const char* example;
    const char* fix;
};

constexpr RuleRow kRulesWithoutMessage[] = {
    {kRequestFailed,
     "A name cannot be checked, proposed or set, because a part of the document is missing or cannot be read.",
     "The father of a job container is not the analysis model, so the names of its jobs cannot be "
     "compared with those of other cases.",
     "Change the document as the message of the finding describes."},
    {kDuplicateDeckName, "Two objects have the same name in the solver deck.",
     "A document contains the materials \"Steel\" and \"STEEL\".",
     "Rename one of the objects; letter case makes no difference."},
    {kDeckCharacter,
     "A name in the solver deck contains a line break, a comma or an asterisk. These characters have a special "
     "meaning in the deck.",
     "A pressure load has the name \"Flange, top\".",
     "Use other characters. The name is a finding only with --strict."},
    {kUnknownType, "A late type is unknown; it may be misspelt.",
     "A set has the type \"QVRLoadsContainerLT\" instead of \"QVRLoadContainerLT\".",
     "If the type is misspelt, correct the key \"type\". Otherwise change nothing; an unknown type is a "
     "finding only with --strict."},
};

std::string TextOf(const char* id, const char* part) {
    ZFXUnicodeString text = MessageCatalog::Find("QVRNameUtility", std::string(id) + part).value_or("");
    text.ReplaceSubString("/P1", "...");
    return text.ConvertToChar();
}

} // namespace

std::vector<Rule> AllRules() {
    std::vector<Rule> rules;
    for (const auto& [id, operations] : kMessages)
        rules.push_back({id, TextOf(id, ".Diagnostic"), TextOf(id, ".Example"), TextOf(id, ".Advice"), operations});
    for (const auto& [id, cause, example, fix] : kRulesWithoutMessage)
        rules.push_back({id, cause, example, fix, {}});
    return rules;
}
