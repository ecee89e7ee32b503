// A program that uses the module only through ZFXIAlias, and therefore none of its symbols. Returns 0 if the alias is
// guarded.
#include "memory-model/MemoryModel.h"

int main() {
    MemoryModel model;
    MemoryFeature step = model.NewDocument().Case("Static").History().Step("QVRGeneralStaticStepLT", "Preload");
    ZFXISpecObject_var feature = step;
    ZFXIAlias_var(feature)->SetAlias("1*Preload");
    return step.StoredAlias() == "Preload" ? 0 : 1;
}
