#pragma once

#include "base/ZFXGuid.h"
#include "base/ZFXPlatformExport.h"
#include "object-model/ZFXBaseUnknown.h"
#include "object-model/ZFXHandle.h"

#include <cstddef>
#include <cstring>

/// The number of each interface, from 1.
enum class ZFXInterfaceNumber : unsigned {
    None,
#define ZFX_INTERFACE(name) name,
#include "object-model/ZFXInterfaces.def"
#undef ZFX_INTERFACE
    Count
};

/// IID_ZFXIAlias and its kin: the root's with the number added.
#define ZFX_INTERFACE(name)                                                                                            \
    inline constexpr IID IID_##name{                                                                                   \
        IID_ZFXBaseUnknown.Data1 + static_cast<unsigned>(ZFXInterfaceNumber::name), 0, 0, {}};
#include "object-model/ZFXInterfaces.def"
#undef ZFX_INTERFACE

/// The number of an interface of this platform, or None for any other identifier.
inline ZFXInterfaceNumber ZFXNumberOf(const IID& iid) noexcept {
    const auto number = static_cast<unsigned>(iid.Data1 - IID_ZFXBaseUnknown.Data1);
    // All but the first part is the root's; it is compared where it stands, as every cast comes this way.
    constexpr std::size_t kFirst = sizeof iid.Data1;
    const auto* rest = reinterpret_cast<const unsigned char*>(&iid) + kFirst;
    const auto* rootsRest = reinterpret_cast<const unsigned char*>(&IID_ZFXBaseUnknown) + kFirst;
    const bool known = number < static_cast<unsigned>(ZFXInterfaceNumber::Count) &&
                       std::memcmp(rest, rootsRest, sizeof(IID) - kFirst) == 0;
    return known ? static_cast<ZFXInterfaceNumber>(number) : ZFXInterfaceNumber::None;
}

/// The identifier of an interface by its name, or null. [borrowed]
ZFX_PLATFORM_EXPORT const IID* ZFXFindInterface(const char* name) noexcept;

/// Stands first in the declaration of an interface: its identifier, its meta class, and a destructor that is
/// defined once, in the platform library.
#define ZFX_DECLARE_INTERFACE(name)                                                                                    \
public:                                                                                                                \
    static constexpr const IID& ClassId() { return IID_##name; }                                                       \
    static ZFXMetaClass* MetaObject();                                                                                 \
    ~name() override;
