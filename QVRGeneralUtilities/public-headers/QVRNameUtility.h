#pragma once

#include "QVRNameUtilityExport.h"

/// The module's marker: answers 1. Its presence tells a host that the module is the one it looks for.
extern "C" QVR_NAME_UTILITY_EXPORT int HALVERN_WORKS_UXM2_INTERNAL_QVRNameUtility();
