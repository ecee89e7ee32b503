#include "internal/InputErrors.h"

#include "errors/ZFXError.h"

#include <cassert>
#include <cstddef>

namespace {

constexpr const char* kIds[] = {
#define MESSAGE_ID(id, raisedBy) #id,
#include "internal/MessageIds.def"
#undef MESSAGE_ID
};

HRESULT Raise(const char* id, const InputErrorDetails& details, const char* sourceFile, int sourceLine) {
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

const char* TextOf(MessageId id) noexcept { return kIds[static_cast<std::size_t>(id)]; }

HRESULT InputErrorReturn(MessageId id, const InputErrorDetails& details, const char* sourceFile, int sourceLine) {
    return Raise(TextOf(id), details, sourceFile, sourceLine);
}

HRESULT InputErrorReturn(const std::string& id, const char* sourceFile, int sourceLine) {
    assert(!id.empty());
    return Raise(id.c_str(), {}, sourceFile, sourceLine);
}
