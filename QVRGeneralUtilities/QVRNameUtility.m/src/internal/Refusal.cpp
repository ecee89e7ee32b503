#include "internal/Refusal.h"

#include "errors/ZFXError.h"

namespace {

HRESULT Raise(const char* id, const RefusalDetails& details, const char* sourceFile, int sourceLine) {
    auto* error = new ZFXInputError(id, "QVRNameUtility");
    if (error == nullptr)
        return E_FAIL;
    error->SetInformationOnErrorType(ZFXErrorTypeInput);
    if (details.returnCode != 0)
        error->SetReturnCode(details.returnCode);
    if (details.diagnostic != nullptr)
        error->SetNLSDiagnosticParams(1, details.diagnostic);
    return ZFXError::GetReturn(ZFXErrorTypeInput, error, nullptr, sourceFile, sourceLine);
}

} // namespace

HRESULT InputErrorReturn(MessageId id, const RefusalDetails& details, const char* sourceFile, int sourceLine) {
    return Raise(TextOf(id), details, sourceFile, sourceLine);
}

HRESULT InputErrorReturn(const std::string& id, const char* sourceFile, int sourceLine) {
    return Raise(id.c_str(), {}, sourceFile, sourceLine);
}
