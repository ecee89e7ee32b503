#pragma once

#include "base/ZFXGuid.h"
#include "base/ZFXPlatformExport.h"

#include <string>
#include <vector>

class ZFXBaseUnknown;

/// The kind of a class in the object model.
enum class ENUMTypeOfClass {
    Interface = 0,
    Implementation = 1,
    /// Adds interfaces to objects of other classes.
    DataExtension = 2,
    /// An adaptor: offers an interface and forwards its calls to an implementation.
    TIE = 6
};

/// Creates an adaptor that offers an interface on `object`. Returns it with one reference for the caller, or null if
/// there is no memory. `context` is for a host's own records.
using ZFXAdaptorFactory = ZFXBaseUnknown* (*)(ZFXBaseUnknown* object, void* context);

/// The description of a class or late type: name, kind, base, and the extensions and adaptors that modules add.
///
/// Meta classes returned by `fct_RetrieveMetaObject`, `fct_RetrieveAdaptorMetaObject` and `fct_FindMetaObject` belong
/// to the platform and exist until the process ends. There is one for each name of a class or late type.
class ZFX_PLATFORM_EXPORT ZFXMetaClass {
public:
    /// Creates a meta class that is not yet declared.
    /// @param classId         copied; if null, an identifier is computed from the name
    /// @param name            copied; null counts as empty
    /// @param base            the meta class of the base class, or null
    /// @param implementation  for an adaptor the class that implements the interface, else null
    /// @param kind            an ENUMTypeOfClass
    ZFXMetaClass(const IID* classId, const char* name, ZFXMetaClass* base, ZFXMetaClass* implementation, int kind);
    ZFXMetaClass(const ZFXMetaClass&) = delete;
    ZFXMetaClass& operator=(const ZFXMetaClass&) = delete;
    ~ZFXMetaClass();

    /// Returns the name. [borrowed]
    const char* IsA() const noexcept { return m_name.c_str(); }
    /// Returns 1 if this class or one of its bases has the name, else 0; 0 if `name` is null.
    [[nodiscard]] int IsAKindOf(const char* name) const noexcept;
    /// Returns the identifier. An adaptor has that of its interface. A class created without an identifier has one
    /// computed from its name, which is equal in every process.
    const GUID& GetClassId() const noexcept { return m_classId; }
    /// Returns the kind.
    ENUMTypeOfClass GetTypeOfClass() const noexcept { return m_kind; }
    /// Returns the meta class of the base class, or null. [borrowed]
    ZFXMetaClass* GetBaseMetaClass() const noexcept { return m_base; }
    /// Returns the class that implements the interface of an adaptor, or null for other kinds. [borrowed]
    ZFXMetaClass* GetImplementationMetaClass() const noexcept { return m_implementation; }

    /// Makes this class an extension of all objects of the late type `extended`. Does nothing if it is one already or
    /// if `extended` is null.
    void SetExtensionOf(ZFXMetaClass* extended);
    /// Returns nonzero if this class is an extension of the late type `extended`, which can be null.
    [[nodiscard]] int IsExtensionOf(const ZFXMetaClass* extended) const noexcept;
    /// Returns true if any class is an extension of this late type.
    [[nodiscard]] bool IsExtended() const noexcept { return !m_extensions.empty(); }
    /// Returns the factory of the adaptor that offers the interface on objects of this late type, or null if no
    /// extension has one. Extensions are searched in the order of SetExtensionOf, their factories in the order of
    /// AddAdaptorFactory; the first match counts.
    [[nodiscard]] ZFXAdaptorFactory FindAdaptorFactory(const IID& iid) const noexcept;

    /// Adds a factory, not null, for an interface that this extension offers. Several factories for one interface are
    /// allowed: a module can be loaded twice.
    void AddAdaptorFactory(const IID& iid, ZFXAdaptorFactory factory);
    /// Removes this factory for the interface.
    void RemoveAdaptorFactory(const IID& iid, ZFXAdaptorFactory factory);
    /// Returns the number of factories of this extension.
    [[nodiscard]] int CountAdaptorFactories() const noexcept { return static_cast<int>(m_adaptors.size()); }

    /// Returns true if Declare was called. A late type that modules only looked up by its name is not declared.
    [[nodiscard]] bool IsDeclared() const noexcept { return m_declared; }
    /// Sets the kind and the base, which can be null. The class must not be declared yet.
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
    std::vector<Adaptor> m_adaptors;         // of this extension
};

/// Returns the meta class of this name and declares it if it is not declared yet: a later call does not change kind and
/// base. Returns null if `name` is null. [borrowed]
/// @param name           the name of the class or late type
/// @param kind           the kind
/// @param base           the meta class of the base class, or null
/// @param firstExtended  the name of a late type that the class extends, or null
/// @param framework      for a host's own records; ignored
/// @param level          for a host's own records; ignored
ZFX_PLATFORM_EXPORT ZFXMetaClass* fct_RetrieveMetaObject(const char* name, ENUMTypeOfClass kind, ZFXMetaClass* base,
                                                         const char* firstExtended, const char* framework, int level);
/// Returns the meta class of the adaptors that offer an interface for an implementation class. Creates it at the first
/// call. `interfaceName` and `implementation` must not be null. [borrowed]
ZFX_PLATFORM_EXPORT ZFXMetaClass* fct_RetrieveAdaptorMetaObject(const IID& iid, const char* interfaceName,
                                                                ZFXMetaClass* interfaceClass,
                                                                ZFXMetaClass* implementation);
/// Returns the meta class of a class or late type, or null if `name` is null. Creates one for a name that is not known
/// yet, so that the order in which modules are loaded does not matter. [borrowed]
ZFX_PLATFORM_EXPORT ZFXMetaClass* fct_FindMetaObject(const char* name);

/// A dictionary entry: while it exists, the interface of `interfaceClass` is offered, through the adaptors that
/// `factory` creates, on the objects that `extension` extends.
///
/// A module defines the entry as a static object: it is added when the module is loaded and removed when the module is
/// unloaded. The adaptors must be released before, because their code is unloaded too.
class ZFX_PLATFORM_EXPORT ZFXFillDictionary {
public:
    /// Adds the entry. `extension`, `interfaceClass` and `factory` must not be null. `secondFactory` and `flag` are for
    /// a host's own records and are ignored.
    ZFXFillDictionary(ZFXMetaClass* extension, ZFXMetaClass* interfaceClass, ZFXAdaptorFactory factory,
                      ZFXAdaptorFactory secondFactory, int flag);
    ZFXFillDictionary(const ZFXFillDictionary&) = delete;
    ZFXFillDictionary& operator=(const ZFXFillDictionary&) = delete;
    /// Removes the entry.
    ~ZFXFillDictionary();

private:
    ZFXMetaClass* m_extension;
    IID m_iid;
    ZFXAdaptorFactory m_factory;
};
