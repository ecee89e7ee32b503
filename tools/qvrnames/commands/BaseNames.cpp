#include "commands/BaseNames.h"

#include "LateTypes.h"
#include "QVRNameUtil.h"

#include <tuple>

bool IsJob(const ZFXISpecObject_var& feature) {
    return feature != nullptr && feature->GetLateType() == LateTypes::QVRJobLT;
}

ZFXUnicodeString BaseNameOf(ZFXISpecObject_var feature) {
    if (IsJob(feature))
        return kJobBase;
    ZFXUnicodeString base;
    std::ignore = QVRNameUtil::CreateBaseName(feature, base); // empty on failure
    return base;
}
