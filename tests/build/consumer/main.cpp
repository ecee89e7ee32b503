// A program of somebody who has only an installed copy: it fails when the libraries, a header that one of these
// needs, or the texts of the refusals are missing from it.
#include "QVRNameUtil.h"
#include "errors/ZFXError.h"
#include "memory-model/MemoryModel.h"

#include <cstdio>
#include <cstring>

int main() {
    MemoryModel model;
    MemoryFeature history = model.NewDocument().Case("Static").History();
    history.Step("QVRStaticLPStepLT", "Step-1");
    ZFXISpecObject_var step = history.Step("QVRStaticLPStepLT", "Step-2");

    const HRESULT code = QVRNameUtil::CheckName(step, "STEP-1", 1);
    ZFXError* refusal = ZFXError::ZFXGetLastError(code, nullptr);
    if (refusal == nullptr || std::strcmp(refusal->GetMsgId(), "DuplicateNameERR_01") != 0)
        return 1;
    std::puts(refusal->GetMessageText());
    return refusal->GetNLSDiagnostic().IsNull() ? 2 : 0;
}
