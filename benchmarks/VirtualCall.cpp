#include "VirtualCall.h"

VirtualCall::~VirtualCall() = default;
int VirtualCall::Answer(const void* /*left*/, const void* /*right*/) const noexcept { return 0; }

const VirtualCall& VirtualCall::Instance() noexcept {
    static const VirtualCall instance;
    return instance;
}
