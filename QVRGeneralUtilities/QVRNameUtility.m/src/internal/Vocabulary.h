#pragma once

#include "text/ZFXUnicodeString.h"

/// The words of the analysis model: late types, catalogs, base names, attribute keys and display values. They
/// are built when the module is loaded, in the order of their table, and destroyed in the reverse order when
/// it is unloaded; no code that runs at load or unload may use them. Such code reads LateTypes.h.
namespace Vocabulary {

#define NAMED_WORD(name, text) extern const ZFXUnicodeString name;
#include "Vocabulary.def"
#undef NAMED_WORD

} // namespace Vocabulary
