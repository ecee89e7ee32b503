#pragma once

#include "base/CompilerExtensions.h"

/// Exports a class or function from the platform library. Everything else is hidden.
#ifdef ZFXPlatform_EXPORTS // defined while the library itself is compiled
#define ZFX_PLATFORM_EXPORT ZFX_EXPORT
#else
#define ZFX_PLATFORM_EXPORT ZFX_IMPORT
#endif
