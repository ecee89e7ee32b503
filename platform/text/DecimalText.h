#pragma once

#include "base/ZFXPlatformExport.h"

#include <optional>
#include <string_view>

/// Parses and formats decimal numbers as "%d" does, independent of the process locale.
namespace DecimalText {

/// Parses the integer at the start of a text: ASCII white space, one optional sign, digits 0 to 9. The rest is ignored.
/// Returns nothing in these cases:
/// - no digit follows the white space and the sign,
/// - the value does not fit an int.
[[nodiscard]] ZFX_PLATFORM_EXPORT std::optional<int> Read(std::u16string_view text) noexcept;

/// The largest number of UTF-16 code units that Write writes.
inline constexpr int kMaxUnits = 11;
/// Formats n. `units` must have room for kMaxUnits code units. Returns the number of code units written; no zero is
/// appended.
[[nodiscard]] ZFX_PLATFORM_EXPORT int Write(int n, char16_t* units) noexcept;

} // namespace DecimalText
