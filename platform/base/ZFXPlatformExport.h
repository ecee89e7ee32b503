#pragma once

/// Exports a class or function from the platform library. Everything else is hidden.
#if !defined(_WIN32)
#define ZFX_PLATFORM_EXPORT __attribute__((visibility("default")))
#elif defined(ZFXPlatform_EXPORTS) // defined while the library itself is compiled
#define ZFX_PLATFORM_EXPORT __declspec(dllexport)
#else
#define ZFX_PLATFORM_EXPORT __declspec(dllimport)
#endif
