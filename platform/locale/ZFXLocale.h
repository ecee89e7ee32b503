#pragma once

// The two locale values of the operating system. Windows has both, in <windows.h>; elsewhere they are made here, in
// the same identifiers: a locale identifier has 32 bits; an input locale has the identifier of its language in the
// low 16 bits and that of the keyboard layout above.
#ifdef _WIN32

#include <windows.h>

#else

#include "base/ZFXPlatformExport.h"

#include <cstdint>

/// A locale identifier.
using LCID = std::uint32_t;
/// An input locale.
using HKL = std::uintptr_t;

/// The user's default locale.
ZFX_PLATFORM_EXPORT LCID GetUserDefaultLCID();
/// The input locale of a thread; 0 asks for the calling thread's.
ZFX_PLATFORM_EXPORT HKL GetKeyboardLayout(std::uint32_t thread);

/// Where the system does not tell them, a host sets both values. Until then they follow the message locale
/// that the process has set: the thirteen English locales by their identifiers, "C" and "POSIX" as English
/// (United States), any other as 0x1000, a locale without an identifier.
ZFX_PLATFORM_EXPORT void ZFXSetLocales(LCID userLocale, HKL inputLocale);
/// Back to following the message locale.
ZFX_PLATFORM_EXPORT void ZFXFollowMessageLocale();

#endif
