#include "object-model/ZFXTie.h"

#include <cassert>

ZFXBaseUnknown* Tie_Construct(ZFXBaseUnknown* adaptor, ZFXTie& tie, ZFXMetaClass* /*adaptorClass*/,
                              const CLSID& /*extension*/, ENUMTypeOfClass /*kind*/, ZFXBaseUnknown* /*previous*/,
                              ZFXImplementationMaker maker, ZFXBaseUnknown* object, void* /*context*/) {
    assert(adaptor != nullptr && "Tie_Construct: the adaptor is null");
    assert(maker != nullptr && "Tie_Construct: the maker is null");
    assert(object != nullptr && "Tie_Construct: the object is null");
    tie.count = 1;
    tie.object = object;
    object->AddRef();
    adaptor->SetImpl(object);
    object->ChangeComponentState(ZFXComponentState::AdaptorAttached, adaptor);
    tie.implementation = maker();
    if (tie.implementation != nullptr)
        tie.implementation->SetImpl(object);
    return nullptr;
}

void Tie_Destruct(ZFXBaseUnknown* adaptor, ZFXTie& tie) {
    if (tie.implementation != nullptr)
        tie.implementation->Release();
    tie.implementation = nullptr;
    if (tie.object == nullptr)
        return;
    adaptor->SetImpl(nullptr);
    tie.object->ChangeComponentState(ZFXComponentState::AdaptorDetached, adaptor);
    tie.object->Release();
    tie.object = nullptr;
}

HRESULT Tie_Query(ZFXBaseUnknown* adaptor, const ZFXTie& tie, const ZFXMetaClass* adaptorClass, const IID& iid,
                  void** interfacePointer) {
    assert(tie.object != nullptr && "Tie_Query: Tie_Construct was not called");
    if (interfacePointer == nullptr)
        return E_POINTER;
    *interfacePointer = nullptr;
    if (iid != adaptorClass->GetClassId())
        return tie.object->QueryInterface(iid, interfacePointer);
    adaptor->AddRef();
    *interfacePointer = adaptor;
    return S_OK;
}

ULONG Tie_AddRef(ZFXTie& tie) { return ++tie.count; }

ULONG Tie_Release(ZFXBaseUnknown* adaptor, ZFXTie& tie) {
    assert(tie.count > 0 && "Tie_Release: there are no references left");
    const ULONG left = --tie.count;
    if (left == 0)
        delete adaptor;
    return left;
}

HRESULT Tie_GetTypeInfoCount(const ZFXTie& tie, unsigned int* count) {
    return tie.implementation->GetTypeInfoCount(count);
}

HRESULT Tie_GetTypeInfo(const ZFXTie& tie, unsigned int index, unsigned long locale, void** info) {
    return tie.implementation->GetTypeInfo(index, locale, info);
}

HRESULT Tie_GetIDsOfNames(const ZFXTie& tie, const IID& iid, char16_t** names, unsigned int count, unsigned long locale,
                          long* ids) {
    return tie.implementation->GetIDsOfNames(iid, names, count, locale, ids);
}

HRESULT Tie_Invoke(const ZFXTie& tie, long id, const IID& iid, unsigned long locale, unsigned short flags, void* params,
                   void* result, void* exception, unsigned int* argument) {
    return tie.implementation->Invoke(id, iid, locale, flags, params, result, exception, argument);
}

ZFXBaseUnknown* Tie_StackCtx::Run(const ZFXTie& tie) noexcept { return tie.implementation; }
