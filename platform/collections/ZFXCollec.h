#pragma once

/// What the platform's lists have in common.
class ZFXCollec {
public:
    /// How a list is emptied: its storage is released as well.
    enum MemoryHandling { ReleaseAllocation = 1 };
};
