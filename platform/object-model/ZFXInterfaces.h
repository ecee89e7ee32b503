#pragma once

#include "base/ZFXGuid.h"
#include "base/ZFXPlatformExport.h"
#include "object-model/ZFXBaseUnknown.h"
#include "object-model/ZFXHandle.h"

#include <cstddef>
#include <cstring>

/// The number of each interface of this platform, from 1, in the order of ZFXInterfaces.def.
enum class ZFXInterfaceNumber : unsigned {
    None,
#define ZFX_INTERFACE(name) name,
#include "object-model/ZFXInterfaces.def"
#undef ZFX_INTERFACE
    Count
};

/// The identifiers of the interfaces, such as IID_ZFXIAlias: that of the root with the number added to its first part.
#define ZFX_INTERFACE(name)                                                                                            \
    inline constexpr IID IID_##name{                                                                                   \
        IID_ZFXBaseUnknown.Data1 + static_cast<unsigned>(ZFXInterfaceNumber::name), 0, 0, {}};
#include "object-model/ZFXInterfaces.def"
#undef ZFX_INTERFACE

/// Returns the number of an interface of this platform, or None for any other identifier.
[[nodiscard]] inline ZFXInterfaceNumber ZFXNumberOf(const IID& iid) noexcept {
    const auto number = static_cast<unsigned>(iid.Data1 - IID_ZFXBaseUnknown.Data1);
    // All parts but the first must equal those of the root. They are compared in place: each cast calls this function.
    constexpr std::size_t kFirst = sizeof iid.Data1;
    const auto* rest = reinterpret_cast<const unsigned char*>(&iid) + kFirst;
    const auto* rootsRest = reinterpret_cast<const unsigned char*>(&IID_ZFXBaseUnknown) + kFirst;
    const bool known = number < static_cast<unsigned>(ZFXInterfaceNumber::Count) &&
                       std::memcmp(rest, rootsRest, sizeof(IID) - kFirst) == 0;
    return known ? static_cast<ZFXInterfaceNumber>(number) : ZFXInterfaceNumber::None;
}

/// Returns the identifier of the interface of this name, or null if the name is null or unknown. [borrowed]
[[nodiscard]] ZFX_PLATFORM_EXPORT const IID* ZFXFindInterface(const char* name) noexcept;

/// Begins the declaration of an interface: declares its identifier, its meta class, and a destructor that the platform
/// library defines. An interface derives from ZFXBaseUnknown and has abstract operations only:
///
///     class ZFX_PLATFORM_EXPORT ZFXIAlias : public ZFXBaseUnknown {
///         ZFX_DECLARE_INTERFACE(ZFXIAlias)
///         virtual ZFXUnicodeString GetAlias() = 0;
///     };
#define ZFX_DECLARE_INTERFACE(name)                                                                                    \
public:                                                                                                                \
    static constexpr const IID& ClassId() { return IID_##name; }                                                       \
    static ZFXMetaClass* MetaObject();                                                                                 \
    ~name() override;
