#include "internal/Decision.h"

#include "errors/ZFXError.h"

namespace {

bool CarriesReturnCode(MessageId id) {
    return id == MessageId::IllegalCharERR_01 || id == MessageId::IllegalCharERR_02 ||
           id == MessageId::DuplicateNameERR_02;
}

HRESULT RaiseForStep(HRESULT comparison, const char* sourceFile, int sourceLine) {
    const ZFXError* error = ZFXError::ZFXGetLastError(comparison, nullptr);
    if (error == nullptr)
        return 1;
    if (error->GetReturnCode() == kNameRejected)
        return InputErrorReturn(MessageId::DuplicateNameERR_01, {}, sourceFile, sourceLine);
    return InputErrorReturn(std::string(error->GetMsgId()), sourceFile, sourceLine);
}

} // namespace

QVRNameFinding FindingOf(const Decision& decision, const ZFXISpecObject_var& feature, const ZFXUnicodeString& name) {
    return {feature,
            name,
            decision.rule ? TextOf(*decision.rule) : "",
            decision.rule ? S_OK : decision.code,
            decision.parameter,
            decision.other};
}

HRESULT Raise(const Decision& decision, const char* sourceFile, int sourceLine) {
    if (!decision.rule)
        return decision.code;
    if (decision.comparison) {
        const HRESULT comparison = Raise(decision.comparison, sourceFile, sourceLine);
        if (decision.isOfStep)
            return RaiseForStep(comparison, sourceFile, sourceLine);
    }
    ZFXUnicodeString parameter(decision.parameter);
    return InputErrorReturn(*decision.rule,
                            {.returnCode = CarriesReturnCode(*decision.rule) ? kNameRejected : 0,
                             .diagnostic = parameter.IsNull() != 0 ? nullptr : &parameter},
                            sourceFile, sourceLine);
}

HRESULT Raise(const std::optional<MessageId>& rule, const char* sourceFile, int sourceLine) {
    return rule ? Raise(Decision::Broken(*rule), sourceFile, sourceLine) : S_OK;
}

ZFXUnicodeString QVRNameFinding::Message() const {
    if (messageId.IsNull() != 0)
        return {};
    ZFXInputError error(messageId, "QVRNameUtility");
    ZFXUnicodeString diagnostic(parameter);
    error.SetNLSDiagnosticParams(1, &diagnostic);
    return error.GetNLSMessage();
}
