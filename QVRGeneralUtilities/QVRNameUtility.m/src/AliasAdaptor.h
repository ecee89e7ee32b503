#pragma once

#include "analysis/ZFXIAlias.h"
#include "object-model/ZFXTie.h"

/// Offers ZFXIAlias on a feature and forwards it to an alias extension of the feature. The platform makes one
/// when a feature is asked for its alias and destroys it with its last reference.
class AliasAdaptor final : public ZFXIAlias {
public:
    /// An adaptor on `object` with one reference, or null when there is no memory.
    static AliasAdaptor* Make(ZFXBaseUnknown* object, void* context);

    HRESULT QueryInterface(const IID& iid, void** face) override;
    ULONG AddRef() override;
    ULONG Release() override;
    HRESULT GetTypeInfoCount(unsigned int* count) override;
    HRESULT GetTypeInfo(unsigned int index, unsigned long locale, void** info) override;
    HRESULT GetIDsOfNames(const IID& iid, char16_t** names, unsigned int count, unsigned long locale,
                          long* ids) override;
    HRESULT Invoke(long id, const IID& iid, unsigned long locale, unsigned short flags, void* params, void* result,
                   void* exception, unsigned int* argument) override;
    using ZFXIAlias::QueryInterface;
    ~AliasAdaptor() override;
    ZFXMetaClass* GetMetaObject() const override;

    void SetAlias(const ZFXUnicodeString& alias) override;
    ZFXUnicodeString GetAlias() override;

private:
    AliasAdaptor() = default;

    ZFXTie m_tie;
};
