#pragma once

#include "base/ZFXResult.h"
#include "internal/MessageIds.h"
#include "text/ZFXUnicodeString.h"

#include <string>

/// Carried by the error of a name that is refused for its characters or as a duplicate.
inline constexpr HRESULT kNameRefused = -100;

/// What some refusals carry beside their message id.
struct RefusalDetails {
    HRESULT returnCode = 0;
    ZFXUnicodeString* diagnostic = nullptr;
};

/// The one raise of a refusal: registers an input error of this id with the raising statement's place, and
/// gives the code to hand back.
[[nodiscard]] HRESULT InputErrorReturn(MessageId id, const RefusalDetails& details = {},
                                       const char* sourceFile = __builtin_FILE(), int sourceLine = __builtin_LINE());
/// Under the id of another error, as a text of the caller's own: the registry may free that error meanwhile.
[[nodiscard]] HRESULT InputErrorReturn(const std::string& id, const char* sourceFile = __builtin_FILE(),
                                       int sourceLine = __builtin_LINE());
