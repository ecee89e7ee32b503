#include "memory-model/MemoryAttributes.h"

#include "memory-model/MemoryObject.h"

ZFXBaseUnknown* MemoryPointingAttribute::GetOwner() {
    return m_owner != nullptr && m_owner->BeginRequest(MemoryRequest::GetOwner).filled ? ZFXNewReference(m_owner)
                                                                                       : nullptr;
}
