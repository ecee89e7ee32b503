#pragma once

/// The scan mode and the member flag that the platform's listings are asked with, always.
inline constexpr int kScanMode = 3;
inline constexpr int kMemberFlag = 0;
