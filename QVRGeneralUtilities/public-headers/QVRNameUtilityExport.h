#pragma once

#include "base/CompilerExtensions.h"

/// Marks what the module exports. Everything else is local to it.
#ifdef QVRNameUtility_EXPORTS // its own sources are compiled
#define QVR_NAME_UTILITY_EXPORT ZFX_EXPORT
#else
#define QVR_NAME_UTILITY_EXPORT ZFX_IMPORT
#endif
