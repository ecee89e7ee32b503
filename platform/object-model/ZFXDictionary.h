#pragma once

#include "base/ZFXPlatformExport.h"
#include "object-model/ZFXMetaClass.h"

/// A dictionary entry: tells the platform that an interface is offered on the objects which `extension`
/// extends, by the adaptors that `factory` makes. A module keeps the entry for as long as it is loaded: the
/// entry is made with the object and withdrawn with it. Adaptors are released before their module is unloaded: their
/// code goes with it.
class ZFX_PLATFORM_EXPORT ZFXFillDictionary {
public:
    /// A second factory and the flag are for a host's own records.
    ZFXFillDictionary(ZFXMetaClass* extension, ZFXMetaClass* interfaceClass, ZFXAdaptorFactory factory,
                      ZFXAdaptorFactory secondFactory, int flag);
    ZFXFillDictionary(const ZFXFillDictionary&) = delete;
    ZFXFillDictionary& operator=(const ZFXFillDictionary&) = delete;
    ~ZFXFillDictionary();

private:
    ZFXMetaClass* m_extension;
    IID m_iid;
    ZFXAdaptorFactory m_factory;
};
