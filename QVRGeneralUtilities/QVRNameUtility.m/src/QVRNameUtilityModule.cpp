// The constants that are built when the module is loaded, and the marker function by which a host recognizes the
// module.

#include "QVRNameUtility.h"

#include "internal/Vocabulary.h"

namespace Vocabulary {
#define NAMED_WORD(name, text) const ZFXUnicodeString name(text);
#include "Vocabulary.def"
#undef NAMED_WORD
} // namespace Vocabulary

int HALVERN_WORKS_UXM2_INTERNAL_QVRNameUtility() { return 1; }
