#include "QVRGenI18NUtils.h"

QVRGenI18NUtils* QVRGenI18NUtils::m_genI18NSingletonObj = nullptr;

QVRGenI18NUtils* QVRGenI18NUtils::Instance() noexcept {
    if (m_genI18NSingletonObj == nullptr)
        m_genI18NSingletonObj = new QVRGenI18NUtils;
    return m_genI18NSingletonObj;
}

QVRGenI18NUtils::QVRGenI18NUtils() = default;
QVRGenI18NUtils::QVRGenI18NUtils(const QVRGenI18NUtils& other) = default;
QVRGenI18NUtils::~QVRGenI18NUtils() = default;

void QVRGenI18NUtils::ResetAllLists() noexcept {
    m_usedGenericNames.RemoveAll(ZFXCollec::ReleaseAllocation);
    m_materialObjects.RemoveAll(ZFXCollec::ReleaseAllocation);
    m_featureNames.RemoveAll(ZFXCollec::ReleaseAllocation);
    m_featureObjects.RemoveAll(ZFXCollec::ReleaseAllocation);
}

HRESULT QVRGenI18NUtils::PushNameToList(const ZFXUnicodeString& name) noexcept {
    m_usedGenericNames.Append(name);
    return S_OK;
}

unsigned char QVRGenI18NUtils::FindNameAndNextID(const ZFXUnicodeString& name, int& nextId) noexcept {
    nextId = m_usedGenericNames.NbOccur(name);
    return nextId > 0 ? 1 : 0;
}
