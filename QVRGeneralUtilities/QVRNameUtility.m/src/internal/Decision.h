#pragma once

#include "QVRNameFinding.h"
#include "internal/InputErrors.h"
#include "object-model/ZFXHandle.h"

#include <optional>

/// The result of a check as a value. Nothing is registered and nothing is printed until Raise is called.
struct Decision {
    HRESULT code = S_OK;                      ///< the result of a check that registers no error
    std::optional<MessageId> rule = {};       ///< the rule that the name breaks; `code` is then unused
    std::optional<MessageId> comparison = {}; ///< the error of the comparison, registered before that of `rule`
    bool isOfStep = false;                    ///< the rule follows from the registered error of the comparison
    ZFXBaseUnknown_var other = {};            ///< the first feature that the name clashes with, or that has no name
    ZFXUnicodeString parameter = {};          ///< the diagnostic parameter of the message

    bool IsFailure() const noexcept { return rule.has_value() || Failed(code); }

    static Decision Broken(MessageId rule) { return {.rule = rule}; }
};

/// Returns the finding that describes the decision about a feature's name.
[[nodiscard]] QVRNameFinding FindingOf(const Decision& decision, const ZFXISpecObject_var& feature,
                                       const ZFXUnicodeString& name);

/// Registers the errors of a decision and returns the code of the last one. Returns `decision.code` if there is no
/// error. Returns 1 if the error of a step's comparison could not be registered.
[[nodiscard]] HRESULT Raise(SourcePosition position, const Decision& decision);
/// Registers the error of a broken rule and returns its code. Returns S_OK if there is no rule.
[[nodiscard]] HRESULT Raise(SourcePosition position, const std::optional<MessageId>& rule);
