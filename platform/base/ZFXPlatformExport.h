#pragma once

/// Marks what the platform library offers to other modules; everything else stays inside it.
#define ZFX_PLATFORM_EXPORT __attribute__((visibility("default")))
