#include "QVRBaseFeatureAlias.h"

#include "QVRNameUtil.h"
#include "analysis/ZFXISpecAttrAccess.h"
#include "errors/ZFXError.h"
#include "internal/Ownership.h"
#include "internal/Vocabulary.h"

#include <iostream>

namespace {

/// The attribute "Alias" of a feature, opened for one reading or writing. Both do nothing when it has none.
class AliasAttribute {
public:
    explicit AliasAttribute(ZFXBaseUnknown* extension) : m_access(extension) {
        if (m_access != nullptr)
            m_key = TakeOver(m_access->GetAttrKey("Alias"));
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

} // namespace

QVRBaseFeatureAlias::QVRBaseFeatureAlias() = default;
QVRBaseFeatureAlias::~QVRBaseFeatureAlias() = default;

ZFXUnicodeString QVRBaseFeatureAlias::GetAlias() noexcept { return AliasAttribute(this).Read(); }

void QVRBaseFeatureAlias::SetAttribute(const ZFXUnicodeString& value) noexcept { AliasAttribute(this).Write(value); }

void QVRBaseFeatureAlias::SetAlias(const ZFXUnicodeString& alias) noexcept {
    ZFXUnicodeString former = GetAlias();
    if (former.IsNull() != 0)
        former = GetAlias(); // a failed request reads as empty too, and what cannot be read cannot be put back
    const ZFXUnicodeString candidate = alias.Strip(ZFXUnicodeString::StripBoth).Strip(ZFXUnicodeString::StripBoth, '_');
    ZFXISpecObject_var feature(this);
    if (feature == nullptr) {
        SetAttribute(former);
        return;
    }
    SetAttribute(candidate); // the checks see the feature under its new name
    if (candidate.IsNull() != 0 && GetAlias().IsNull() == 0)
        SetAttribute(candidate); // an empty one is checked as what is stored, so it must be
    const ZFXUnicodeString lateType = feature->GetLateType();
    const unsigned char checkStartAndEnd = lateType == Vocabulary::QVRShellSectionEnhLT ? 0 : 1;
    HRESULT code = QVRNameUtil::CheckName(feature, candidate, checkStartAndEnd);
    if (lateType == Vocabulary::QVRJobLT)
        code = QVRNameUtil::IsNameUniqueAcrossCases(feature, candidate);
    if (!Failed(code)) {
        SetAttribute(candidate);
        return;
    }
    if (ZFXError* error = ZFXError::ZFXGetLastError(code, nullptr))
        std::cout << "NAME ERROR: " << error->GetNLSMessage().ConvertToChar() << std::endl;
    SetAttribute(former);
    if (GetAlias() != former)
        SetAttribute(former); // a refusal leaves the alias as it was, also when a request to put it back failed
}
