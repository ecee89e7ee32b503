#include "AliasAdaptor.h"

#include "QVREFeatureAlias.h"
#include "object-model/ZFXDictionary.h"

namespace {

ZFXMetaClass* AdaptorClass() {
    static ZFXMetaClass* const adaptorClass = fct_RetrieveAdaptorMetaObject(
        IID_ZFXIAlias, "ZFXIAlias", ZFXIAlias::MetaObject(), QVREFeatureAlias::MetaObject());
    return adaptorClass;
}

/// What Tie_Construct gave for the module's last adaptor, to be offered to the next.
ZFXBaseUnknown* previousImplementation = nullptr;

QVREFeatureAlias* ImplementationOf(const ZFXTie& tie) { return static_cast<QVREFeatureAlias*>(Tie_StackCtx::Run(tie)); }

/// Made when the module is loaded: a feature of the late types answers ZFXIAlias from then on.
const ZFXFillDictionary dictionaryEntry(QVREFeatureAlias::MetaObject(), ZFXIAlias::MetaObject(),
                                        CreateTIEZFXIAliasQVREFeatureAlias, nullptr, 1);

} // namespace

AliasAdaptor* AliasAdaptor::Make(ZFXBaseUnknown* object, void* context) {
    auto* adaptor = new AliasAdaptor;
    if (adaptor == nullptr || object == nullptr) {
        delete adaptor;
        return nullptr;
    }
    previousImplementation = Tie_Construct(adaptor, adaptor->m_tie, AdaptorClass(), QVREFeatureAlias::ClassId(),
                                           QVREFeatureAlias::MetaObject()->GetTypeOfClass(), previousImplementation,
                                           QVREFeatureAlias::CreateItself, object, context);
    if (adaptor->m_tie.implementation != nullptr)
        return adaptor;
    adaptor->Release();
    return nullptr;
}

AliasAdaptor::~AliasAdaptor() { Tie_Destruct(this, m_tie); }

HRESULT AliasAdaptor::QueryInterface(const IID& iid, void** face) {
    return Tie_Query(this, m_tie, AdaptorClass(), iid, face);
}

ULONG AliasAdaptor::AddRef() { return Tie_AddRef(m_tie); }
ULONG AliasAdaptor::Release() { return Tie_Release(this, m_tie); }
HRESULT AliasAdaptor::GetTypeInfoCount(unsigned int* count) { return Tie_GetTypeInfoCount(m_tie, count); }

HRESULT AliasAdaptor::GetTypeInfo(unsigned int index, unsigned long locale, void** info) {
    return Tie_GetTypeInfo(m_tie, index, locale, info);
}

HRESULT AliasAdaptor::GetIDsOfNames(const IID& iid, char16_t** names, unsigned int count, unsigned long locale,
                                    long* ids) {
    return Tie_GetIDsOfNames(m_tie, iid, names, count, locale, ids);
}

HRESULT AliasAdaptor::Invoke(long id, const IID& iid, unsigned long locale, unsigned short flags, void* params,
                             void* result, void* exception, unsigned int* argument) {
    return Tie_Invoke(m_tie, id, iid, locale, flags, params, result, exception, argument);
}

ZFXMetaClass* AliasAdaptor::GetMetaObject() const { return AdaptorClass(); }

void AliasAdaptor::SetAlias(const ZFXUnicodeString& alias) { ImplementationOf(m_tie)->SetAlias(alias); }
ZFXUnicodeString AliasAdaptor::GetAlias() { return ImplementationOf(m_tie)->GetAlias(); }

ZFXBaseUnknown* CreateTIEZFXIAliasQVREFeatureAlias(ZFXBaseUnknown* object, void* context) {
    return AliasAdaptor::Make(object, context);
}
