#pragma once

#include "analysis/ZFXISpecObject.h"
#include "base/ZFXResult.h"
#include "text/ZFXUnicodeString.h"

#include <string>

/// What a check of the naming module said.
struct Verdict {
    HRESULT code = S_OK;
    std::string messageId; ///< empty for a refusal without a message
    std::string message;

    bool IsRefusal() const noexcept { return Failed(code); }
};

/// The outcome of a check, with the error that it registered: to be asked right after it.
Verdict VerdictOf(HRESULT code);

/// The rules that a name must pass by its text alone, as those of a feature or of a file.
Verdict CheckText(const ZFXUnicodeString& name);
Verdict CheckFileName(const ZFXUnicodeString& name);

/// Whether the name is one that the feature may have, judged as the module's own guard of new names judges:
/// shell sections may begin with a digit, and for jobs nothing counts but that no case has the name.
Verdict CheckFeatureName(const ZFXISpecObject_var& feature, const ZFXUnicodeString& name);

/// What else can be said of the name that a feature has: a job's against all jobs of the document, a bolt
/// tightening's once made legal and against its siblings'. No refusal for any other feature.
Verdict CheckSpecialRules(const ZFXISpecObject_var& feature);

/// The name without the blanks and then the underscores at its ends, as the guard stores it.
ZFXUnicodeString TrimmedName(const ZFXUnicodeString& name);
