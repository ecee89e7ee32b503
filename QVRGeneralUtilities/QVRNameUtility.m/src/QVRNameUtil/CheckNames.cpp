// Checks the names of many features in linear time: each scope is listed once, each name is requested once, and a name
// is looked up in an index of its scope instead of being compared with all features.

#include "QVRNameUtil.h"

#include "LateTypes.h"
#include "QVRGenZFXUnicodeStringUtils.h"
#include "internal/NameScopes.h"
#include "internal/ScopeIndex.h"
#include "internal/TextRules.h"
#include "internal/Vocabulary.h"

#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <variant>

namespace {

using NameScopes::Scope;

/// Identifies a scope: features with equal keys are compared with the same list.
struct ScopeKey {
    std::size_t kind;                        ///< the alternative of Scope
    ZFXBaseUnknown_var owner;                ///< keeps the object alive, so that its address stays unique
    std::optional<ZFXUnicodeString> setType; ///< for Propagating: late type of the set that contains the feature

    friend bool operator==(const ScopeKey& a, const ScopeKey& b) {
        return a.kind == b.kind && a.owner == b.owner && a.setType.has_value() == b.setType.has_value() &&
               (!a.setType || *a.setType == *b.setType);
    }
};

struct HashOfScope {
    std::size_t operator()(const ScopeKey& key) const {
        const std::size_t type = key.setType ? std::hash<std::u16string_view>()(key.setType->Units()) : 0;
        return std::hash<const ZFXBaseUnknown*>()(ZFXIdentityOf(key.owner)) + 31 * key.kind + type;
    }
};

/// The features of a scope, after they have been listed.
struct ListedScope {
    ScopeIndex index;
    bool isCompared = false; ///< false if no list could be obtained
    Decision result = {};    ///< the decision about a name that differs from all names of the index
};

class NameChecker {
public:
    explicit NameChecker(ZFXListVal<QVRNameFinding>& findings) : m_findings(findings) {}

    void Check(const ZFXISpecObject_var& feature);

private:
    void CheckText(const ZFXUnicodeString& name, bool withFirstCharacter);
    /// Returns the decision about the name of m_feature in a scope.
    Decision Compare(const Scope& scope);
    ListedScope& Listed(const Scope& scope);
    /// Appends a finding unless the feature already has one with this rule.
    void Report(const Decision& decision);

    ZFXListVal<QVRNameFinding>& m_findings;
    NameCache m_names;
    std::unordered_map<ScopeKey, ListedScope, HashOfScope> m_scopes;
    // Of the feature that is checked:
    ZFXISpecObject_var m_feature;
    const std::optional<ZFXUnicodeString>* m_name = nullptr;
    int m_firstFinding = 1;
};

void NameChecker::Check(const ZFXISpecObject_var& feature) {
    m_feature = feature;
    m_name = &m_names.Of(feature);
    m_firstFinding = m_findings.Size() + 1;
    const ZFXUnicodeString lateType = feature == nullptr ? ZFXUnicodeString() : feature->GetLateType();
    if (lateType == Vocabulary::QVRJobLT) {
        Report(Compare(NameScopes::OfJob(feature)));
        if (*m_name)
            Report(Compare(NameScopes::JobsOfDocument{}));
        return;
    }
    if (!*m_name) {
        Report(Decision::Broken(MessageId::ZFXIAliasERR_01));
        return;
    }
    Report(Compare(NameScopes::OfFeature(feature)));
    CheckText(**m_name, lateType != Vocabulary::QVRShellSectionEnhLT);
    Report(TextRules::AboveLatin1(**m_name));
    if (LateTypes::IsOfKind(lateType, LateTypes::Kind::BoltTightening)) {
        CheckText(QVRGenZFXUnicodeStringUtils::ReplacePeriodWithDash(**m_name), true);
        Report(Compare(NameScopes::OfBoltTightening(feature)));
    }
}

void NameChecker::CheckText(const ZFXUnicodeString& name, bool withFirstCharacter) {
    for (const std::optional<MessageId>& rule : TextRules::BrokenRules(name, withFirstCharacter))
        if (rule)
            Report(Decision::Broken(*rule));
}

Decision NameChecker::Compare(const Scope& scope) {
    if (const auto* decision = std::get_if<Decision>(&scope))
        return *decision;
    const ListedScope& listed = Listed(scope);
    Decision comparison;
    if (*m_name)
        comparison = listed.index.Compare(m_feature, **m_name);
    else if (listed.isCompared)
        comparison = Decision::Broken(MessageId::ZFXIAliasERR_01);
    return comparison.rule ? NameScopes::ComparisonFailed(scope, *comparison.rule, comparison.other) : listed.result;
}

ListedScope& NameChecker::Listed(const Scope& scope) {
    ScopeKey key{scope.index(), NameScopes::OwnerOf(scope), {}};
    if (std::holds_alternative<NameScopes::Propagating>(scope))
        key.setType = NameScopes::SetTypeOf(m_feature);
    const auto [entry, isNew] = m_scopes.try_emplace(std::move(key), ListedScope{ScopeIndex(m_names)});
    const std::optional<ZFXUnicodeString>& setType = entry->first.setType;
    ListedScope& listed = entry->second;
    if (isNew)
        listed.result = NameScopes::CompareWith(
            scope,
            [&](const ZFXISpecObject_var& step, ZFXListValZFXBaseUnknown_var& features) {
                return NameScopes::AppendFeaturesOfStep(step, setType, features);
            },
            [&](const ZFXListValZFXBaseUnknown_var& features) {
                listed.isCompared = true;
                listed.index.Add(features, std::holds_alternative<NameScopes::JobsOfDocument>(scope));
                return Decision{};
            });
    return listed;
}

void NameChecker::Report(const Decision& decision) {
    if (!decision.IsFailure())
        return;
    QVRNameFinding finding = FindingOf(decision, m_feature, m_name->value_or(ZFXUnicodeString()));
    for (int i = m_firstFinding; i <= m_findings.Size(); ++i)
        if (m_findings[i].messageId == finding.messageId)
            return;
    m_findings.Append(std::move(finding));
}

} // namespace

HRESULT QVRNameUtil::CheckNames(const ZFXListValZFXISpecObject_var& features,
                                ZFXListVal<QVRNameFinding>& findings) noexcept {
    NameChecker checker(findings);
    for (const ZFXISpecObject_var& feature : features)
        checker.Check(feature);
    return S_OK;
}
