#pragma once

#include "collections/ZFXListVal.h"

/// An ordered, growable list of int.
using ZFXRawCollint = ZFXListVal<int>;
