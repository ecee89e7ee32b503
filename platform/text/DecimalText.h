#pragma once

#include "base/ZFXPlatformExport.h"

#include <optional>
#include <string_view>

/// The one reader and the one writer of the "%d" form.
namespace DecimalText {

/// The integer at the front of a text, read in place: ASCII white space, one sign, digits; what follows is
/// ignored. Nothing when there are no digits or when the value does not fit an int.
ZFX_PLATFORM_EXPORT std::optional<int> Read(std::u16string_view text) noexcept;

/// The longest result of Write.
inline constexpr int kMaxUnits = 11;
/// Writes n in decimal and returns the units written.
ZFX_PLATFORM_EXPORT int Write(int n, char16_t* units) noexcept;

} // namespace DecimalText
