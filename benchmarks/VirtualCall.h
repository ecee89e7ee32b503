#pragma once

/// An empty virtual function. The object is created in another source file, so that the compiler cannot replace the
/// call by a direct one.
class VirtualCall {
public:
    virtual ~VirtualCall();
    virtual int Call(const void* left, const void* right) const noexcept;

    static const VirtualCall& Instance() noexcept;
};
