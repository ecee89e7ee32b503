#include "memory-model/MemoryAttributes.h"

#include "memory-model/MemoryObject.h"

HRESULT MemoryPointingAttribute::QueryInterface(const IID& iid, void** result) {
    if (result == nullptr || iid != IID_ZFXISpecAttribute)
        return ZFXISpecAttribute::QueryInterface(iid, result);
    AddRef();
    *result = this;
    return S_OK;
}

ZFXBaseUnknown* MemoryPointingAttribute::GetOwner() {
    if (m_owner == nullptr || !m_owner->BeginRequest(MemoryRequest::GetOwner).filled)
        return nullptr;
    m_owner->AddRef();
    return m_owner;
}
