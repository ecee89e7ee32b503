#pragma once

#include "QVRNameUtilityExport.h"

#include "analysis/ZFXISpecObject.h"
#include "base/ZFXResult.h"

/// A rule that the name of a feature breaks, or a check that failed.
struct QVR_NAME_UTILITY_EXPORT QVRNameFinding {
    /// The feature.
    ZFXISpecObject_var feature;
    /// Its name; empty if it has none.
    ZFXUnicodeString name;
    /// The id of the message in the catalog "QVRNameUtility"; empty if a check failed without an error.
    ZFXUnicodeString messageId;
    /// The code of a check that failed without an error, otherwise S_OK.
    HRESULT code = S_OK;
    /// The diagnostic parameter of the message; empty if the message has none.
    ZFXUnicodeString parameter;
    /// The first feature in the scope that has the same name apart from letter case, or that has no name. Empty for a
    /// rule about the text of the name.
    ZFXBaseUnknown_var other;

    /// Returns the text of the message, in the language that is set for messages. Returns an empty string if
    /// `messageId` is empty. Registers no error.
    ZFXUnicodeString Message() const;
};
