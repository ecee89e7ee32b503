#pragma once

#include "text/ZFXUnicodeString.h"

/// The string constants of Vocabulary.def. They are built in the order of the rows when the module is loaded, and
/// destroyed in the reverse order when it is unloaded. Code that runs at load or unload must not use them; it uses the
/// constants of LateTypes.h.
namespace Vocabulary {

#define NAMED_WORD(name, text) extern const ZFXUnicodeString name;
#include "Vocabulary.def"
#undef NAMED_WORD

} // namespace Vocabulary
