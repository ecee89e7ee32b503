#pragma once

#include "base/ZFXGuid.h"
#include "base/ZFXPlatformExport.h"

#include <string>
#include <vector>

class ZFXBaseUnknown;

/// What a class is to the object model.
enum class ENUMTypeOfClass {
    Interface = 0,
    Implementation = 1,
    /// Adds interfaces to objects of other classes.
    DataExtension = 2,
    /// The adaptor that offers an interface and forwards it to an implementation.
    TIE = 6
};

/// Makes an adaptor that offers an interface on `object`, with one reference for the caller, or null.
using ZFXAdaptorFactory = ZFXBaseUnknown* (*)(ZFXBaseUnknown* object, void* context);

/// The description of a class or late type: its name, what it derives from, and what extends it.
///
/// Those that `fct_RetrieveMetaObject` and `fct_FindMetaObject` hand out belong to the platform and live
/// until the process ends; there is one for each name.
class ZFX_PLATFORM_EXPORT ZFXMetaClass {
public:
    /// A class of the given kind; an adaptor's names the interface that it offers and the class that
    /// implements it. The name is copied.
    ZFXMetaClass(const IID* classId, const char* name, ZFXMetaClass* base, ZFXMetaClass* implementation, int kind);
    ZFXMetaClass(const ZFXMetaClass&) = delete;
    ZFXMetaClass& operator=(const ZFXMetaClass&) = delete;
    ~ZFXMetaClass();

    /// The name. [borrowed]
    const char* IsA() const noexcept { return m_name.c_str(); }
    /// Nonzero when this class or one that it derives from has the name.
    int IsAKindOf(const char* name) const noexcept;
    /// The identifier: of an interface and of its adaptors the interface's, else one made out of the name.
    const GUID& GetClassId() const noexcept { return m_classId; }
    /// What it is to the object model.
    ENUMTypeOfClass GetTypeOfClass() const noexcept { return m_kind; }
    /// What it derives from, or null. [borrowed]
    ZFXMetaClass* GetBaseMetaClass() const noexcept { return m_base; }
    /// Of an adaptor the class that implements it, else null. [borrowed]
    ZFXMetaClass* GetImplementationMetaClass() const noexcept { return m_implementation; }

    /// Declares that this class extends every object of the late type `extended`. Null and repeats are
    /// ignored.
    void SetExtensionOf(ZFXMetaClass* extended);
    /// Nonzero when this class extends objects of the late type.
    int IsExtensionOf(const ZFXMetaClass* extended) const noexcept;
    /// Whether anything extends objects of this late type.
    bool IsExtended() const noexcept { return !m_extensions.empty(); }
    /// The factory that offers an interface on objects of this late type through one of its extensions, or
    /// null.
    ZFXAdaptorFactory FindAdaptorFactory(const IID& iid) const noexcept;

    /// The dictionary's side: which interface this extension offers, and how its adaptor is made. Of several entries
    /// for one interface the latest that stands counts: a module may be loaded twice.
    void AddAdaptorFactory(const IID& iid, ZFXAdaptorFactory factory);
    /// Withdraws the entry for the interface that names this factory.
    void RemoveAdaptorFactory(const IID& iid, ZFXAdaptorFactory factory);
    /// How many entries stand.
    int CountAdaptorFactories() const noexcept { return static_cast<int>(m_adaptors.size()); }

    /// Whether it was declared, and not only asked for by its name. A declaration settles kind and base.
    bool IsDeclared() const noexcept { return m_declared; }
    /// Declares it to be of this kind and derived from `base`, which may be null.
    void Declare(ENUMTypeOfClass kind, ZFXMetaClass* base) noexcept;

private:
    struct Adaptor {
        IID iid;
        ZFXAdaptorFactory factory;
    };

    std::string m_name;
    GUID m_classId;
    ZFXMetaClass* m_base;
    ZFXMetaClass* m_implementation;
    ENUMTypeOfClass m_kind;
    bool m_declared = false;
    std::vector<ZFXMetaClass*> m_extensions; // of this late type
    std::vector<Adaptor> m_adaptors;         // offered by this extension
};

/// The meta class of the name, made on the first call. `firstExtended` names a late type that it extends, or
/// is null. `framework` and `level` are for a host's own records. [borrowed]
ZFX_PLATFORM_EXPORT ZFXMetaClass* fct_RetrieveMetaObject(const char* name, ENUMTypeOfClass kind, ZFXMetaClass* base,
                                                         const char* firstExtended, const char* framework, int level);
/// The meta class of the adaptors that offer an interface for an implementation class, made on the first call.
/// [borrowed]
ZFX_PLATFORM_EXPORT ZFXMetaClass* fct_RetrieveAdaptorMetaObject(const IID& iid, const char* interfaceName,
                                                                ZFXMetaClass* interfaceClass,
                                                                ZFXMetaClass* implementation);
/// The meta class of a class or late type; one is made for a name that is not known yet, so that the order in
/// which modules are loaded does not matter. Null for a null name. [borrowed]
ZFX_PLATFORM_EXPORT ZFXMetaClass* fct_FindMetaObject(const char* name);

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
