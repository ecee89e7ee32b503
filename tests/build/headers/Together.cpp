#include "Everything.h"

/// All forms in which handles are compared: before C++20 none follows from another.
int main() {
    MemoryModel model;
    const ZFXISpecObject_var step = model.NewDocument().Case("Static").History().Step("QVRGeneralStaticStepLT", "Step");
    const ZFXBaseUnknown_var root = step;
    const ZFXIAlias_var none;
    const ZFXISpecObject* raw = step;
    const bool same = step == root && root == step && step == raw && raw == root && none == nullptr && nullptr == none;
    const bool other = step != none && step != nullptr && nullptr != root && raw != none && none != raw;
    const bool notOther = !(step != root) && !(root != raw) && !(raw != step) && !(none != nullptr);
    return same && other && notOther && IID_ZFXIAlias != IID_ZFXBaseUnknown ? 0 : 1;
}
