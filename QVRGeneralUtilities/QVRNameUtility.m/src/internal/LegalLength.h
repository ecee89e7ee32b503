#pragma once

/// The longest legal name, in UTF-16 code units.
inline constexpr int kMaxNameLength = 72;
