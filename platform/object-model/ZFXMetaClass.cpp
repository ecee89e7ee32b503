#include "object-model/ZFXMetaClass.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <string_view>

namespace {

/// Returns an identifier computed from the class's name, equal in every process.
GUID IdOfName(std::string_view name) noexcept {
    std::uint64_t halves[] = {0xCBF29CE484222325U, 0x84222325CBF29CE4U};
    for (const char c : name) {
        halves[0] = (halves[0] ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
        halves[1] = (halves[1] + static_cast<unsigned char>(c)) * 0x9E3779B97F4A7C15U;
    }
    GUID id;
    static_assert(sizeof id == sizeof halves);
    std::memcpy(&id, halves, sizeof id);
    return id;
}

/// Never destroyed: modules and objects can outlive the static objects of this library.
std::map<std::string, std::unique_ptr<ZFXMetaClass>>& Registry() {
    static auto* const registry = new std::map<std::string, std::unique_ptr<ZFXMetaClass>>;
    return *registry;
}

} // namespace

ZFXMetaClass::ZFXMetaClass(const IID* classId, const char* name, ZFXMetaClass* base, ZFXMetaClass* implementation,
                           int kind)
    : m_name(name == nullptr ? "" : name),
      m_classId(classId != nullptr ? *classId : IdOfName(m_name)),
      m_base(base),
      m_implementation(implementation),
      m_kind(static_cast<ENUMTypeOfClass>(kind)) {}

ZFXMetaClass::~ZFXMetaClass() = default;

int ZFXMetaClass::IsAKindOf(const char* name) const noexcept {
    for (const ZFXMetaClass* c = this; c != nullptr && name != nullptr; c = c->m_base)
        if (c->m_name == name)
            return 1;
    return 0;
}

void ZFXMetaClass::SetExtensionOf(ZFXMetaClass* extended) {
    if (extended != nullptr && IsExtensionOf(extended) == 0)
        extended->m_extensions.push_back(this);
}

int ZFXMetaClass::IsExtensionOf(const ZFXMetaClass* extended) const noexcept {
    return extended != nullptr && std::find(extended->m_extensions.begin(), extended->m_extensions.end(), this) !=
                                      extended->m_extensions.end();
}

void ZFXMetaClass::Declare(ENUMTypeOfClass kind, ZFXMetaClass* base) noexcept {
    assert(!m_declared && "ZFXMetaClass::Declare: the class is declared already");
    m_kind = kind;
    m_base = base;
    m_declared = true;
}

ZFXAdaptorFactory ZFXMetaClass::FindAdaptorFactory(const IID& iid) const noexcept {
    for (const ZFXMetaClass* extension : m_extensions)
        for (const Adaptor& adaptor : extension->m_adaptors)
            if (adaptor.iid == iid)
                return adaptor.factory;
    return nullptr;
}

void ZFXMetaClass::AddAdaptorFactory(const IID& iid, ZFXAdaptorFactory factory) {
    assert(factory != nullptr && "ZFXMetaClass::AddAdaptorFactory: the factory is null");
    m_adaptors.push_back({iid, factory});
}

void ZFXMetaClass::RemoveAdaptorFactory(const IID& iid, ZFXAdaptorFactory factory) {
    std::erase_if(m_adaptors, [&](const Adaptor& a) { return a.iid == iid && a.factory == factory; });
}

ZFXMetaClass* fct_RetrieveMetaObject(const char* name, ENUMTypeOfClass kind, ZFXMetaClass* base,
                                     const char* firstExtended, const char* /*framework*/, int /*level*/) {
    ZFXMetaClass* metaClass = fct_FindMetaObject(name);
    if (metaClass == nullptr)
        return nullptr;
    if (!metaClass->IsDeclared())
        metaClass->Declare(kind, base);
    metaClass->SetExtensionOf(fct_FindMetaObject(firstExtended));
    return metaClass;
}

ZFXMetaClass* fct_RetrieveAdaptorMetaObject(const IID& iid, const char* interfaceName, ZFXMetaClass* interfaceClass,
                                            ZFXMetaClass* implementation) {
    assert(interfaceName != nullptr && "fct_RetrieveAdaptorMetaObject: the name is null");
    assert(implementation != nullptr && "fct_RetrieveAdaptorMetaObject: the implementation is null");
    std::unique_ptr<ZFXMetaClass>& metaClass = Registry()[std::string(implementation->IsA()) + "/" + interfaceName];
    if (metaClass == nullptr)
        metaClass = std::make_unique<ZFXMetaClass>(&iid, interfaceName, interfaceClass, implementation,
                                                   static_cast<int>(ENUMTypeOfClass::TIE));
    return metaClass.get();
}

ZFXMetaClass* fct_FindMetaObject(const char* name) {
    if (name == nullptr)
        return nullptr;
    std::unique_ptr<ZFXMetaClass>& metaClass = Registry()[name];
    if (metaClass == nullptr)
        metaClass = std::make_unique<ZFXMetaClass>(nullptr, name, nullptr, nullptr,
                                                   static_cast<int>(ENUMTypeOfClass::Implementation));
    return metaClass.get();
}

ZFXFillDictionary::ZFXFillDictionary(ZFXMetaClass* extension, ZFXMetaClass* interfaceClass, ZFXAdaptorFactory factory,
                                     ZFXAdaptorFactory /*secondFactory*/, int /*flag*/)
    : m_extension(extension), m_iid(interfaceClass->GetClassId()), m_factory(factory) {
    assert(extension != nullptr && "ZFXFillDictionary: the extension is null");
    m_extension->AddAdaptorFactory(m_iid, m_factory);
}

ZFXFillDictionary::~ZFXFillDictionary() { m_extension->RemoveAdaptorFactory(m_iid, m_factory); }
