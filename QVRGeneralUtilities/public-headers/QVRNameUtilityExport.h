#pragma once

/// Marks what the module exports; everything else stays inside it.
#define QVR_NAME_UTILITY_EXPORT __attribute__((visibility("default")))
