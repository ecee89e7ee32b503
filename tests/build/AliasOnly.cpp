// A program that uses the module only through ZFXIAlias, so none of the module's symbols. It returns 0 if the alias is
// guarded.
#include "memory-model/MemoryModel.h"

int main() {
    MemoryModel model;
    MemoryFeature step = model.NewDocument().Case("Static").History().Step("QVRGeneralStaticStepLT", "Preload");
    ZFXISpecObject_var feature = step;
    ZFXIAlias_var(feature)->SetAlias("1*Preload");
    return step.StoredAlias() == "Preload" ? 0 : 1;
}
