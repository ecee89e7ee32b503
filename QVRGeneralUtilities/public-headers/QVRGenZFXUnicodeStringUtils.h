#pragma once

#include "QVRNameUtilityExport.h"

#include "base/ZFXResult.h"
#include "collections/ZFXRawCollint.h"
#include "text/ZFXUnicodeString.h"

/// Makes a name fit for the solver's input deck or for a file name. Each text function returns a new text and
/// leaves its argument as it is; none of them fails. All may run on several threads at a time.
class QVR_NAME_UTILITY_EXPORT QVRGenZFXUnicodeStringUtils {
public:
    /// Copies nothing: there is nothing to copy.
    QVRGenZFXUnicodeStringUtils& operator=(const QVRGenZFXUnicodeStringUtils&);

    /// Without the space U+0020, wherever it stands.
    static ZFXUnicodeString RemoveSpaces(const ZFXUnicodeString& in) noexcept;
    /// Without the double quote.
    static ZFXUnicodeString RemoveDoubleQuotes(const ZFXUnicodeString& in) noexcept;
    /// Without the backslash.
    static ZFXUnicodeString RemoveBackSlashes(const ZFXUnicodeString& in) noexcept;
    /// Without the full stop.
    static ZFXUnicodeString RemovePeriods(const ZFXUnicodeString& in) noexcept;
    /// The run of spaces at the start goes, however long; spaces further on stay. Its kin likewise.
    static ZFXUnicodeString RemoveLeadingSpaces(const ZFXUnicodeString& in) noexcept;
    /// The run of underscores at the start.
    static ZFXUnicodeString RemoveLeadingUnderscores(const ZFXUnicodeString& in) noexcept;
    /// The run of spaces at the end.
    static ZFXUnicodeString RemoveTrailingSpaces(const ZFXUnicodeString& in) noexcept;
    /// The run of underscores at the end.
    static ZFXUnicodeString RemoveTrailingUnderscores(const ZFXUnicodeString& in) noexcept;
    /// Each backslash becomes a solidus.
    static ZFXUnicodeString ReplaceBackslashWithForwardslash(const ZFXUnicodeString& in) noexcept;
    /// Each full stop becomes a hyphen.
    static ZFXUnicodeString ReplacePeriodWithDash(const ZFXUnicodeString& in) noexcept;
    /// The first 72 units of a longer text; the cut may fall inside a word or a surrogate pair. (The name is
    /// spelt as its callers know it.)
    static ZFXUnicodeString TrucateToLegalLength(const ZFXUnicodeString& in) noexcept;

    /// Reads the integers of `text` between separators and appends them to `numbers`, the last one first. The
    /// separator counts with its first character only: the rest of a longer one is read as part of the
    /// number. What does not begin with a number is skipped. `text` keeps what stood before the first separator. An
    /// empty separator separates nothing. Always S_OK.
    static HRESULT GetIntegerListFromString(ZFXUnicodeString& text, ZFXRawCollint& numbers,
                                            ZFXUnicodeString separator) noexcept;
};
