#include "object-model/ZFXDictionary.h"

ZFXFillDictionary::ZFXFillDictionary(ZFXMetaClass* extension, ZFXMetaClass* interfaceClass, ZFXAdaptorFactory factory,
                                     ZFXAdaptorFactory /*secondFactory*/, int /*flag*/)
    : m_extension(extension), m_iid(interfaceClass->GetClassId()), m_factory(factory) {
    m_extension->AddAdaptorFactory(m_iid, m_factory);
}

ZFXFillDictionary::~ZFXFillDictionary() { m_extension->RemoveAdaptorFactory(m_iid, m_factory); }
