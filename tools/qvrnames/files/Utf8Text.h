#pragma once

#include "text/ZFXUnicodeString.h"

#include <string>
#include <string_view>

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// The message about a text that IsUtf8 refuses.
inline constexpr const char* kNotUtf8 = "the text is not UTF-8, or contains the character U+0000";

/// Returns true if the text is UTF-8 and does not contain U+0000.
inline bool IsUtf8(const std::string& text) { return ZFXUnicodeString(text.c_str()).ConvertToChar() == text; }
