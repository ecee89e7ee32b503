#pragma once

#include "QVRNameUtilityExport.h"

#include "base/ZFXResult.h"
#include "collections/ZFXListVal.h"
#include "text/ZFXUnicodeString.h"

/// Removes and replaces characters of names. The functions that return a text leave their argument unchanged and cannot
/// fail. All functions may run on several threads at a time. None throws an exception.
class QVR_NAME_UTILITY_EXPORT QVRGenZFXUnicodeStringUtils {
public:
    /// Does nothing: the class has no members.
    QVRGenZFXUnicodeStringUtils& operator=(const QVRGenZFXUnicodeStringUtils&);

    /// Returns the text without its spaces (U+0020).
    static ZFXUnicodeString RemoveSpaces(const ZFXUnicodeString& in) noexcept;
    /// Returns the text without its double quotes.
    static ZFXUnicodeString RemoveDoubleQuotes(const ZFXUnicodeString& in) noexcept;
    /// Returns the text without its backslashes.
    static ZFXUnicodeString RemoveBackSlashes(const ZFXUnicodeString& in) noexcept;
    /// Returns the text without its full stops.
    static ZFXUnicodeString RemovePeriods(const ZFXUnicodeString& in) noexcept;
    /// Returns the text without the spaces at the start.
    static ZFXUnicodeString RemoveLeadingSpaces(const ZFXUnicodeString& in) noexcept;
    /// Returns the text without the underscores at the start.
    static ZFXUnicodeString RemoveLeadingUnderscores(const ZFXUnicodeString& in) noexcept;
    /// Returns the text without the spaces at the end.
    static ZFXUnicodeString RemoveTrailingSpaces(const ZFXUnicodeString& in) noexcept;
    /// Returns the text without the underscores at the end.
    static ZFXUnicodeString RemoveTrailingUnderscores(const ZFXUnicodeString& in) noexcept;
    /// Returns the text with slashes for backslashes.
    static ZFXUnicodeString ReplaceBackslashWithForwardslash(const ZFXUnicodeString& in) noexcept;
    /// Returns the text with hyphens for full stops.
    static ZFXUnicodeString ReplacePeriodWithDash(const ZFXUnicodeString& in) noexcept;
    /// Returns the first 72 UTF-16 code units of the text. The cut may be inside a word or a surrogate pair. (Callers
    /// depend on the spelling of the name.)
    static ZFXUnicodeString TrucateToLegalLength(const ZFXUnicodeString& in) noexcept;

    /// Splits `text` at every `separator` and appends the integer at the start of each part to `numbers`, the last part
    /// first. Always returns S_OK. `text` becomes the part before the first separator.
    /// - An integer is read as "%d" reads it: white space, sign and digits. Parts that do not begin with an int are
    ///   skipped.
    /// - Of a separator with several units, only the first is removed: the others are the start of the next part.
    /// - An empty separator does not split the text.
    static HRESULT GetIntegerListFromString(ZFXUnicodeString& text, ZFXRawCollint& numbers,
                                            ZFXUnicodeString separator) noexcept;
};
