// Offers ZFXIAlias on the features of the guarded late types and forwards it to QVREFeatureAlias. An interface cast
// creates an adaptor; the last release of the adaptor destroys it.

#include "QVREFeatureAlias.h"

#include "analysis/ZFXIAlias.h"
#include "object-model/ZFXMetaClass.h"
#include "object-model/ZFXTie.h"

#include <cassert>

namespace {

/// Registered when the module is loaded. From then on, a feature of the guarded late types offers ZFXIAlias.
const ZFXFillDictionary dictionaryEntry(QVREFeatureAlias::MetaObject(), ZFXIAlias::MetaObject(),
                                        CreateTIEZFXIAliasQVREFeatureAlias, nullptr, 1);

ZFXMetaClass* AdaptorClass() {
    static ZFXMetaClass* const adaptorClass = fct_RetrieveAdaptorMetaObject(
        IID_ZFXIAlias, "ZFXIAlias", ZFXIAlias::MetaObject(), QVREFeatureAlias::MetaObject());
    return adaptorClass;
}

class AliasAdaptor final : public ZFXIAlias {
public:
    /// Creates an adaptor on `object` with one reference. Returns null if `object` is null or no memory is available.
    [[nodiscard]] static AliasAdaptor* Make(ZFXBaseUnknown* object, void* context) {
        auto* adaptor = object == nullptr ? nullptr : new AliasAdaptor;
        if (adaptor == nullptr)
            return nullptr;
        previousImplementation = Tie_Construct(adaptor, adaptor->m_tie, AdaptorClass(), QVREFeatureAlias::ClassId(),
                                               QVREFeatureAlias::MetaObject()->GetTypeOfClass(), previousImplementation,
                                               QVREFeatureAlias::CreateItself, object, context);
        if (adaptor->m_tie.implementation != nullptr)
            return adaptor;
        adaptor->Release();
        return nullptr;
    }
    ~AliasAdaptor() override { Tie_Destruct(this, m_tie); }

    void SetAlias(const ZFXUnicodeString& alias) override { Implementation()->SetAlias(alias); }
    ZFXUnicodeString GetAlias() override { return Implementation()->GetAlias(); }

    using ZFXIAlias::QueryInterface;
    HRESULT QueryInterface(const IID& iid, void** face) override {
        return Tie_Query(this, m_tie, AdaptorClass(), iid, face);
    }
    ULONG AddRef() override { return Tie_AddRef(m_tie); }
    ULONG Release() override { return Tie_Release(this, m_tie); }
    ZFXMetaClass* GetMetaObject() const override { return AdaptorClass(); }
    HRESULT GetTypeInfoCount(unsigned int* count) override { return Tie_GetTypeInfoCount(m_tie, count); }
    HRESULT GetTypeInfo(unsigned int index, unsigned long locale, void** info) override {
        return Tie_GetTypeInfo(m_tie, index, locale, info);
    }
    HRESULT GetIDsOfNames(const IID& iid, char16_t** names, unsigned int count, unsigned long locale,
                          long* ids) override {
        return Tie_GetIDsOfNames(m_tie, iid, names, count, locale, ids);
    }
    HRESULT Invoke(long id, const IID& iid, unsigned long locale, unsigned short flags, void* params, void* result,
                   void* exception, unsigned int* argument) override {
        return Tie_Invoke(m_tie, id, iid, locale, flags, params, result, exception, argument);
    }

private:
    AliasAdaptor() = default;

    QVREFeatureAlias* Implementation() const {
        ZFXBaseUnknown* const implementation = Tie_StackCtx::Run(m_tie);
        assert(implementation != nullptr);
        return static_cast<QVREFeatureAlias*>(implementation);
    }

    /// The result of the last call of Tie_Construct. The next call gets it as an argument.
    static inline ZFXBaseUnknown* previousImplementation = nullptr;

    ZFXTie m_tie;
};

} // namespace

ZFXBaseUnknown* CreateTIEZFXIAliasQVREFeatureAlias(ZFXBaseUnknown* object, void* context) {
    return AliasAdaptor::Make(object, context);
}
