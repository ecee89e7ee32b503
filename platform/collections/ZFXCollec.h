#pragma once

/// The scope of the enumeration that all lists use.
class ZFXCollec {
public:
    /// What happens to a list's storage when its elements are removed: it is freed.
    enum MemoryHandling { ReleaseAllocation = 1 };
};
