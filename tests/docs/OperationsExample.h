#pragma once

// The declarations that the examples of docs/operations.md use. Their "assert" is an expectation of the test.

#include "QVREFeatureAlias.h"
#include "QVRGenI18NUtils.h"
#include "QVRGenInstanceName.h"
#include "QVRGenZFXUnicodeStringUtils.h"
#include "QVRNameUtil.h"
#include "QVRNameUtility.h"
#include "locale/ZFXLocale.h"
#include "memory-model/MemoryModel.h"
#include "support/Results.h"

#include <gtest/gtest.h>

#undef assert
#define assert(condition) EXPECT_TRUE(condition)
