#pragma once

/// Marks what the platform library offers to other modules; everything else stays inside it.
#if !defined(_WIN32)
#define ZFX_PLATFORM_EXPORT __attribute__((visibility("default")))
#elif defined(ZFXPlatform_EXPORTS) // its own sources are compiled
#define ZFX_PLATFORM_EXPORT __declspec(dllexport)
#else
#define ZFX_PLATFORM_EXPORT __declspec(dllimport)
#endif
