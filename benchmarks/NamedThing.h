#pragma once

#include "text/ZFXUnicodeString.h"

#include <memory>
#include <vector>

/// What holds a name and can do no less than show it.
class NamedThing {
public:
    virtual ~NamedThing() = default;
    virtual const ZFXUnicodeString& Name() const noexcept = 0;
};

/// In the order in which they were made, each a block of the heap, as the features of a document are.
using NamedThings = std::vector<std::unique_ptr<NamedThing>>;
