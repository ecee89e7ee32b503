#pragma once

#include "memory-model/MemoryModel.h"
#include "object-model/ZFXImplements.h"

#include <string>
#include <utility>

/// The key of one attribute name.
class MemoryAttrKey final : public ZFXISpecAttrKey {
public:
    explicit MemoryAttrKey(std::string keyName) : name(std::move(keyName)), isAlias(name == "Alias") {}
    const std::string name;
    const bool isAlias; // compared once, because most requests are for the alias
    /// Returns the number of references, without the session's own.
    long References() { return static_cast<long>(Count()) - 1; }
};

/// An attribute of one object that points at another. The object that it points at has a reference on it.
class MemoryPointingAttribute final : public ZFXImplements<ZFXObject, ZFXISpecAttribute> {
public:
    explicit MemoryPointingAttribute(MemoryObject* owner) : ZFXImplements(nullptr), m_owner(owner) {}

    ZFXBaseUnknown* GetOwner() override;

    /// Clears the owner. GetOwner returns null from now on.
    void ForgetOwner() noexcept { m_owner = nullptr; }
    /// Returns the number of references, without that of the object that it points at.
    long References() { return static_cast<long>(Count()) - 1; }

private:
    MemoryObject* m_owner;
};
