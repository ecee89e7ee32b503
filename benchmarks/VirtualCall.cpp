#include "VirtualCall.h"

VirtualCall::~VirtualCall() = default;
int VirtualCall::Call(const void* /*left*/, const void* /*right*/) const noexcept { return 0; }

const VirtualCall& VirtualCall::Instance() noexcept {
    static const VirtualCall instance;
    return instance;
}
