#pragma once

#include "text/ZFXUnicodeString.h"

#include <memory>
#include <vector>

/// An object with a name: the minimum that a scan over features must read. The class is not in an unnamed namespace,
/// so that the compiler cannot replace the virtual call by a direct one.
class NamedObject {
public:
    virtual ~NamedObject() = default;
    virtual const ZFXUnicodeString& Name() const noexcept = 0;
};

/// Each object has its own heap block, like the features of a document.
using NamedObjects = std::vector<std::unique_ptr<NamedObject>>;
