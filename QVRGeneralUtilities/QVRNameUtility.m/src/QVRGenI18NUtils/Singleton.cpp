// The one QVRGenI18NUtils object and its caches. The lists are the data; an index over them replaces searches.

#include "QVRGenI18NUtils.h"

#include "QVRGenI18NUtils/Index.h"

QVRGenI18NUtils* QVRGenI18NUtils::m_genI18NSingletonObj = nullptr;

QVRGenI18NUtils* QVRGenI18NUtils::Instance() noexcept {
    if (m_genI18NSingletonObj == nullptr)
        m_genI18NSingletonObj = new QVRGenI18NUtils;
    return m_genI18NSingletonObj;
}

QVRGenI18NUtils::QVRGenI18NUtils() : m_index(std::make_unique<Index>(*this)) {}

QVRGenI18NUtils::QVRGenI18NUtils(const QVRGenI18NUtils& other)
    : m_localesChecked(other.m_localesChecked),
      m_englishMode(other.m_englishMode),
      m_initialUserLocaleEnglish(other.m_initialUserLocaleEnglish),
      m_initialInputLocaleEnglish(other.m_initialInputLocaleEnglish),
      m_usedGenericNames(other.m_usedGenericNames),
      m_materialObjects(other.m_materialObjects),
      m_featureNames(other.m_featureNames),
      m_featureObjects(other.m_featureObjects),
      m_featureLateTypes(other.m_featureLateTypes),
      m_index(std::make_unique<Index>(*this)) {}

QVRGenI18NUtils::~QVRGenI18NUtils() = default;

void QVRGenI18NUtils::ResetAllLists() noexcept {
    m_usedGenericNames.RemoveAll(ZFXCollec::ReleaseAllocation);
    m_materialObjects.RemoveAll(ZFXCollec::ReleaseAllocation);
    m_featureNames.RemoveAll(ZFXCollec::ReleaseAllocation);
    m_featureObjects.RemoveAll(ZFXCollec::ReleaseAllocation);
    m_featureLateTypes.RemoveAll(ZFXCollec::ReleaseAllocation);
    m_index = std::make_unique<Index>(*this);
}

HRESULT QVRGenI18NUtils::PushNameToList(const ZFXUnicodeString& name) noexcept {
    m_index->usedNames.Append(name);
    return S_OK;
}

unsigned char QVRGenI18NUtils::FindNameAndNextID(const ZFXUnicodeString& name, int& nextId) noexcept {
    nextId = m_index->usedNames.NbOccur(name);
    return nextId > 0 ? 1 : 0;
}
