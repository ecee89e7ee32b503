#include "internal/NameDecisions.h"

#include "analysis/ZFXIAlias.h"
#include "internal/ScopeNames.h"
#include "internal/TextRules.h"

namespace NameDecisions {

Decision InList(const ZFXISpecObject_var& feature, const ZFXListValZFXBaseUnknown_var& features,
                const NameToCheck& name) {
    const ZFXIAlias_var ownAlias(feature);
    const bool isStoredName = name.text.IsNull() != 0 && !name.isLiteral;
    if (isStoredName && ownAlias == nullptr)
        return Decision::Broken(MessageId::ZFXIAliasERR_01);
    const ZFXUnicodeString candidate = isStoredName ? ownAlias->GetAlias() : name.text;
    const ZFXBaseUnknown* self = ZFXIdentityOf(feature);
    Decision decision;
    ForEachPrefetched(features, [&](const ZFXBaseUnknown_var& other) {
        if (ZFXIdentityOf(other) == self)
            return true;
        const ZFXIAlias_var alias(other);
        if (alias == nullptr)
            decision = {.rule = MessageId::ZFXIAliasERR_01, .other = other};
        else if (NamesClash(candidate, alias->GetAlias()))
            decision = {.rule = MessageId::DuplicateNameERR_02, .other = other};
        return !decision.IsFailure();
    });
    return decision;
}

Decision InScope(const NameScopes::Scope& scope, const ZFXISpecObject_var& feature, const NameToCheck& name) {
    return NameScopes::CompareWith(
        scope,
        [&](const ZFXISpecObject_var& step, ZFXListValZFXBaseUnknown_var& features) {
            return NameScopes::AppendFeaturesOfStep(step, NameScopes::SetTypeOf(feature), features);
        },
        [&](const ZFXListValZFXBaseUnknown_var& features) {
            const Decision decision = InList(feature, features, name);
            return decision.rule ? NameScopes::ComparisonFailed(scope, *decision.rule, decision.other) : decision;
        });
}

Decision OfName(const ZFXISpecObject_var& feature, const NameToCheck& name, bool checkFirstCharacter) {
    const ZFXIAlias_var alias(feature);
    if (alias == nullptr)
        return Decision::Broken(MessageId::ZFXIAliasERR_01);
    const Decision unique = InScope(NameScopes::OfFeature(feature), feature, name);
    if (unique.IsFailure())
        return unique;
    const bool isStoredName = name.text.IsNull() != 0 && !name.isLiteral;
    const ZFXUnicodeString text = isStoredName ? alias->GetAlias() : name.text;
    for (const std::optional<MessageId>& rule : TextRules::BrokenRules(text, checkFirstCharacter))
        if (rule)
            return Decision::Broken(*rule);
    return TextRules::AboveLatin1(text);
}

} // namespace NameDecisions
