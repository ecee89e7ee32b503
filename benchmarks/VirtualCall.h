#pragma once

/// A call that can do no less: virtual, and its object made where the caller cannot see.
class VirtualCall {
public:
    virtual ~VirtualCall();
    virtual int Answer(const void* left, const void* right) const noexcept;

    static const VirtualCall& Instance() noexcept;
};
