#include "internal/InputErrors.h"

#include "errors/ZFXError.h"

#include <cassert>
#include <cstddef>

namespace {

constexpr const char* kIds[] = {
#define MESSAGE_ID(id, raisedBy) #id,
#include "MessageIds.def"
#undef MESSAGE_ID
};

HRESULT Raise(SourcePosition position, const char* id, const InputErrorDetails& details) {
    auto* error = new ZFXInputError(id, "QVRNameUtility");
    if (error == nullptr)
        return E_FAIL;
    error->SetInformationOnErrorType(ZFXErrorTypeInput);
    if (details.returnCode != 0)
        error->SetReturnCode(details.returnCode);
    if (details.diagnostic != nullptr)
        error->SetNLSDiagnosticParams(1, details.diagnostic);
    return ZFXError::GetReturn(ZFXErrorTypeInput, error, nullptr, position.file, position.line);
}

} // namespace

const char* TextOf(MessageId id) noexcept { return kIds[static_cast<std::size_t>(id)]; }

HRESULT InputErrorReturn(SourcePosition position, MessageId id, const InputErrorDetails& details) {
    return Raise(position, TextOf(id), details);
}

HRESULT InputErrorReturn(SourcePosition position, const std::string& id) {
    assert(!id.empty());
    return Raise(position, id.c_str(), {});
}
