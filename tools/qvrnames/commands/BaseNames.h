#pragma once

#include "analysis/ZFXISpecObject.h"
#include "text/ZFXUnicodeString.h"

/// The base name of all jobs. GetUniqueNameForJob, which numbers jobs, uses it; CreateBaseName does not return it.
inline constexpr const char* kJobBase = "Job-";

/// Returns true if the late type of the feature is that of jobs. An empty handle is no job.
[[nodiscard]] bool IsJob(const ZFXISpecObject_var& feature);

/// Returns the base name of the feature's late type, or an empty text if it has none.
[[nodiscard]] ZFXUnicodeString BaseNameOf(ZFXISpecObject_var feature);
