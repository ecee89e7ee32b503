#pragma once

/// Marks what the module exports. Everything else is local to it.
#if !defined(_WIN32)
#define QVR_NAME_UTILITY_EXPORT __attribute__((visibility("default")))
#elif defined(QVRNameUtility_EXPORTS) // its own sources are compiled
#define QVR_NAME_UTILITY_EXPORT __declspec(dllexport)
#else
#define QVR_NAME_UTILITY_EXPORT __declspec(dllimport)
#endif
