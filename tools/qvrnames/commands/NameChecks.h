#pragma once

#include "analysis/ZFXISpecObject.h"
#include "base/ZFXResult.h"
#include "text/ZFXUnicodeString.h"

#include <string>

/// The result of a check by the naming module.
struct Verdict {
    HRESULT code = S_OK;
    std::string messageId; ///< empty if the name is accepted, or if it is refused without a registered error
    std::string message;   ///< why the name is refused; empty if it is accepted

    bool IsRefusal() const noexcept { return Failed(code); }
};

/// Returns the verdict for the code of an operation and the error registered under that code. If none is registered,
/// the message names the operation, the code and `requirement`. Must be called before the next operation, which may
/// register further errors.
/// @param requirement  a sentence: what the operation needs to succeed
[[nodiscard]] Verdict VerdictOf(HRESULT code, const char* operation, const char* requirement);

/// Checks the text of a name: its length, its first character and its characters. No feature is involved.
[[nodiscard]] Verdict CheckText(const ZFXUnicodeString& name);
/// Checks the characters of a file name.
[[nodiscard]] Verdict CheckFileName(const ZFXUnicodeString& name);

/// Checks whether a feature can have a name, exactly as the alias extension of the naming module does: a shell section
/// can begin with a digit, and a job's name is compared with the jobs of all cases and not checked otherwise. An empty
/// name means the feature's stored name.
[[nodiscard]] Verdict CheckFeatureName(const ZFXISpecObject_var& feature, const ZFXUnicodeString& name);

/// Checks the stored name of a feature against rules for its type that CheckFeatureName does not include. Accepts the
/// name of a feature of any other type.
/// - Job: the name is unique among all jobs of the document.
/// - Bolt tightening: the name in the form for the solver deck is legal and differs from those of its siblings.
[[nodiscard]] Verdict CheckSpecialRules(const ZFXISpecObject_var& feature);

/// Returns the name without spaces and then without underscores at its ends, as the alias extension stores it.
[[nodiscard]] ZFXUnicodeString TrimmedName(const ZFXUnicodeString& name);
