#pragma once

// The two locale values of the operating system, which decide whether the system is English. Windows defines both in
// <windows.h>. On other systems this header defines them, with the identifiers of Windows:
// - a locale identifier has 32 bits;
// - an input locale has the identifier of its language in the low 16 bits and that of the keyboard layout above them.
#ifdef _WIN32

#include <windows.h>

#else

#include "base/ZFXPlatformExport.h"

#include <cstdint>

/// A locale identifier.
using LCID = std::uint32_t;
/// An input locale.
using HKL = std::uintptr_t;

/// Returns the user's default locale: the one that ZFXSetLocales has set, or that of the message locale.
[[nodiscard]] ZFX_PLATFORM_EXPORT LCID GetUserDefaultLCID();
/// Returns the input locale of a thread: the one that ZFXSetLocales has set, or that of the message locale, with
/// language and keyboard layout equal. `thread` is ignored: all threads have one input locale.
[[nodiscard]] ZFX_PLATFORM_EXPORT HKL GetKeyboardLayout(std::uint32_t thread);

/// Sets both values. Until a host sets them, they follow the message locale of the process (LC_MESSAGES), whose
/// encoding and variant have no effect:
/// - each of the thirteen English locales has its identifier,
/// - "C" and "POSIX" count as English (United States), 0x0409,
/// - any other locale has the identifier 0x1000.
ZFX_PLATFORM_EXPORT void ZFXSetLocales(LCID userLocale, HKL inputLocale);
/// Discards the values that ZFXSetLocales has set. Both follow the message locale again.
ZFX_PLATFORM_EXPORT void ZFXFollowMessageLocale();

#endif
