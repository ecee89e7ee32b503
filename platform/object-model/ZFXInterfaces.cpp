#include "object-model/ZFXInterfaces.h"

#include <cstring>

namespace {
struct Row {
    const char* name;
    IID iid;
};
constexpr Row kInterfaces[] = {
    {"ZFXBaseUnknown", IID_ZFXBaseUnknown},
#define ZFX_INTERFACE(name) {#name, IID_##name},
#include "object-model/ZFXInterfaces.def"
#undef ZFX_INTERFACE
};
} // namespace

const IID* ZFXFindInterface(const char* name) noexcept {
    for (const Row& row : kInterfaces)
        if (name != nullptr && std::strcmp(row.name, name) == 0)
            return &row.iid;
    return nullptr;
}
