#include "QVRBaseFeatureAlias.h"

#include "analysis/ZFXISpecAttrAccess.h"
#include "errors/ZFXError.h"
#include "internal/NameDecisions.h"
#include "internal/Vocabulary.h"

#include <cassert>
#include <iostream>

namespace {

/// The attribute "Alias" of a feature, for one read or one write. Without the attribute, Read returns an empty string
/// and Write does nothing.
class AliasAttribute {
public:
    explicit AliasAttribute(ZFXBaseUnknown* extension) : m_access(extension) {
        assert(extension != nullptr);
        if (m_access != nullptr)
            m_key = ZFXISpecAttrKey_var::Attach(m_access->GetAttrKey("Alias"));
    }

    ZFXUnicodeString Read() const { return m_key == nullptr ? ZFXUnicodeString() : m_access->GetString(m_key, 0); }
    void Write(const ZFXUnicodeString& value) const {
        if (m_key != nullptr)
            m_access->SetString(m_key, value, 0);
    }

private:
    ZFXISpecAttrAccess_var m_access;
    ZFXISpecAttrKey_var m_key;
};

/// Makes the checks of SetAlias and returns the code of the last one.
/// @param finding  receives the result if the last check fails; may be null
HRESULT CheckCandidate(const ZFXISpecObject_var& feature, const NameDecisions::NameToCheck& name,
                       QVRNameFinding* finding) {
    const ZFXUnicodeString lateType = feature->GetLateType();
    Decision decision = NameDecisions::OfName(feature, name, lateType != Vocabulary::QVRShellSectionEnhLT);
    HRESULT code = Raise(QVR_HERE, decision);
    if (lateType == Vocabulary::QVRJobLT) {
        decision = NameDecisions::InScope(NameScopes::OfJob(feature), feature, name);
        code = Raise(QVR_HERE, decision);
    }
    if (finding != nullptr && Failed(code))
        *finding = FindingOf(decision, feature, name.text);
    return code;
}

/// Prints the message of the error that is registered under a code. Prints nothing if there is none.
void PrintError(HRESULT code) {
    if (ZFXError* error = ZFXError::ZFXGetLastError(code, nullptr))
        std::cout << "NAME ERROR: " << error->GetNLSMessage().ConvertToChar() << std::endl;
}

} // namespace

QVRBaseFeatureAlias::QVRBaseFeatureAlias() = default;
QVRBaseFeatureAlias::~QVRBaseFeatureAlias() = default;

ZFXUnicodeString QVRBaseFeatureAlias::GetAlias() noexcept { return AliasAttribute(this).Read(); }

ZFXUnicodeString QVRBaseFeatureAlias::Trimmed(const ZFXUnicodeString& alias) noexcept {
    return alias.Strip(ZFXUnicodeString::StripBoth).Strip(ZFXUnicodeString::StripBoth, '_');
}

HRESULT QVRBaseFeatureAlias::CheckAlias(const ZFXISpecObject_var& feature, const ZFXUnicodeString& alias,
                                        QVRNameFinding* finding) noexcept {
    return feature == nullptr ? E_FAIL : CheckCandidate(feature, {Trimmed(alias), true}, finding);
}

void QVRBaseFeatureAlias::SetAttribute(const ZFXUnicodeString& value) noexcept { AliasAttribute(this).Write(value); }

void QVRBaseFeatureAlias::SetAlias(const ZFXUnicodeString& alias) noexcept {
    ZFXUnicodeString kept = GetAlias();
    const ZFXUnicodeString candidate = Trimmed(alias);
    const ZFXISpecObject_var feature(this);
    if (feature == nullptr) {
        SetAttribute(kept);
        return;
    }
    SetAttribute(candidate); // the checks read the alias of the feature
    const HRESULT code = CheckCandidate(feature, {candidate}, nullptr);
    if (Failed(code))
        PrintError(code);
    else
        kept = candidate;
    SetAttribute(kept);
}
