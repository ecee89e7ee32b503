#include "QVRNameUtility.h"

int HALVERN_WORKS_UXM2_INTERNAL_QVRNameUtility() { return 1; }
