#include "internal/Decision.h"

#include "errors/ZFXError.h"

namespace {

bool CarriesReturnCode(MessageId id) {
    return id == MessageId::IllegalCharERR_01 || id == MessageId::IllegalCharERR_02 ||
           id == MessageId::DuplicateNameERR_02;
}

HRESULT RaiseForStep(SourcePosition position, HRESULT comparison) {
    const ZFXError* error = ZFXError::ZFXGetLastError(comparison, nullptr);
    if (error == nullptr)
        return 1;
    if (error->GetReturnCode() == kNameRejected)
        return InputErrorReturn(position, MessageId::DuplicateNameERR_01);
    return InputErrorReturn(position, std::string(error->GetMsgId()));
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

HRESULT Raise(SourcePosition position, const Decision& decision) {
    if (!decision.rule)
        return decision.code;
    if (decision.comparison) {
        const HRESULT comparison = Raise(position, decision.comparison);
        if (decision.isOfStep)
            return RaiseForStep(position, comparison);
    }
    ZFXUnicodeString parameter(decision.parameter);
    return InputErrorReturn(position, *decision.rule,
                            {.returnCode = CarriesReturnCode(*decision.rule) ? kNameRejected : 0,
                             .diagnostic = parameter.IsNull() != 0 ? nullptr : &parameter});
}

HRESULT Raise(SourcePosition position, const std::optional<MessageId>& rule) {
    return rule ? Raise(position, Decision::Broken(*rule)) : S_OK;
}

ZFXUnicodeString QVRNameFinding::Message() const {
    if (messageId.IsNull() != 0)
        return {};
    ZFXInputError error(messageId, "QVRNameUtility");
    ZFXUnicodeString diagnostic(parameter);
    error.SetNLSDiagnosticParams(1, &diagnostic);
    return error.GetNLSMessage();
}
