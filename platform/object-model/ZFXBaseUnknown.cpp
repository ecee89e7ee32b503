#include "object-model/ZFXBaseUnknown.h"

#include "object-model/ZFXInterfaces.h"
#include "object-model/ZFXMetaClass.h"

#include <cassert>
#include <utility>

HRESULT ZFXBaseUnknown::QueryInterface(const IID& iid, void** interfacePointer) {
    if (interfacePointer == nullptr)
        return E_POINTER;
    *interfacePointer = nullptr;
    if (m_implementation != nullptr)
        return m_implementation->QueryInterface(iid, interfacePointer);
    if (iid != IID_ZFXBaseUnknown)
        return E_NOINTERFACE;
    AddRef();
    *interfacePointer = this;
    return S_OK;
}

HRESULT ZFXBaseUnknown::QueryInterface(const char* interfaceName, void** interfacePointer) {
    if (interfacePointer == nullptr)
        return E_POINTER;
    *interfacePointer = nullptr;
    const IID* iid = ZFXFindInterface(interfaceName);
    return iid == nullptr ? E_NOINTERFACE : QueryInterface(*iid, interfacePointer);
}

HRESULT ZFXBaseUnknown::GetTypeInfoCount(unsigned int* count) {
    if (count == nullptr)
        return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT ZFXBaseUnknown::GetTypeInfo(unsigned int, unsigned long, void**) { return E_NOTIMPL; }

HRESULT ZFXBaseUnknown::GetIDsOfNames(const IID&, char16_t**, unsigned int, unsigned long, long*) { return E_NOTIMPL; }

HRESULT ZFXBaseUnknown::Invoke(long, const IID&, unsigned long, unsigned short, void*, void*, void*, unsigned int*) {
    return E_NOTIMPL;
}

ZFXBaseUnknown::~ZFXBaseUnknown() {
    assert(m_count <= 1 && "ZFXBaseUnknown: an object is destroyed to which others have references");
}

ZFXMetaClass* ZFXBaseUnknown::MetaObject() {
    static ZFXMetaClass* const metaObject = fct_RetrieveMetaObject("ZFXBaseUnknown", ENUMTypeOfClass::Implementation,
                                                                   ZFXnull::MetaObject(), nullptr, "ZFXPlatform", 0);
    return metaObject;
}

ZFXMetaClass* ZFXnull::MetaObject() {
    static ZFXMetaClass* const metaObject =
        fct_RetrieveMetaObject("ZFXnull", ENUMTypeOfClass::Implementation, nullptr, nullptr, "ZFXPlatform", 0);
    return metaObject;
}

ZFXMetaClass* ZFXBaseUnknown::GetMetaObject() const { return MetaObject(); }
const char* ZFXBaseUnknown::IsA() const { return GetMetaObject()->IsA(); }
int ZFXBaseUnknown::IsAKindOf(const char* name) const { return GetMetaObject()->IsAKindOf(name); }

ZFXBaseUnknown* ZFXBaseUnknown::GetImpl() const {
    return m_implementation != nullptr ? m_implementation->GetImpl() : const_cast<ZFXBaseUnknown*>(this);
}

ZFXBaseUnknown* ZFXBaseUnknown::SetImpl(ZFXBaseUnknown* implementation) {
    return std::exchange(m_implementation, implementation);
}

int ZFXBaseUnknown::IsNull() const { return 0; }
int ZFXBaseUnknown::IsEqual(const ZFXBaseUnknown* other) const { return ZFXSameObject(this, other); }
void ZFXBaseUnknown::ChangeComponentState(ZFXComponentState, ZFXBaseUnknown*) {}
