#pragma once

#include "QVRNameUtilityExport.h"

/// Returns 1. The presence of this function identifies the module to a host.
extern "C" QVR_NAME_UTILITY_EXPORT int HALVERN_WORKS_UXM2_INTERNAL_QVRNameUtility();
