#include "QVRNameUtil.h"

#include "LateTypes.h"

HRESULT QVRNameUtil::CreateBaseName(ZFXISpecObject_var& feature, ZFXUnicodeString& baseName) noexcept {
    if (feature == nullptr)
        return E_FAIL;
    const ZFXUnicodeString lateType = feature->GetLateType();
    for (const LateTypes::Row& row : LateTypes::kRows) {
        if (row.baseName == nullptr || lateType != row.lateType)
            continue;
        baseName = row.baseName;
        break;
    }
    return S_OK;
}
