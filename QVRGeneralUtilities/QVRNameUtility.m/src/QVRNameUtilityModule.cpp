#include "QVRNameUtility.h"

#include "QVRNameUtil.h"
#include "internal/Vocabulary.h"

namespace Vocabulary {
#define NAMED_WORD(name, text) const ZFXUnicodeString name(text);
#include "Vocabulary.def"
#undef NAMED_WORD
} // namespace Vocabulary

int HALVERN_WORKS_UXM2_INTERNAL_QVRNameUtility() { return 1; }

QVRNameUtil::QVRNameUtil() = default;
QVRNameUtil::QVRNameUtil(const QVRNameUtil& other) = default;
QVRNameUtil& QVRNameUtil::operator=(const QVRNameUtil& other) = default;
QVRNameUtil::~QVRNameUtil() = default;
