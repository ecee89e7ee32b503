#pragma once

/// A 128-bit identifier of an interface or class. On Windows it is the system's type. Elsewhere its layout is that of
/// the type on Windows.
#ifdef _WIN32
#include <guiddef.h>
#else

#include <cstdint>
#include <cstring>

struct GUID {
    /// The bits, in the parts that the text form separates with hyphens.
    /// @{
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    unsigned char Data4[8];
    /// @}
};

/// Compares all bits.
/// @{
inline bool operator==(const GUID& a, const GUID& b) noexcept { return std::memcmp(&a, &b, sizeof a) == 0; }
inline bool operator!=(const GUID& a, const GUID& b) noexcept { return !(a == b); }
/// @}

/// The identifier of an interface.
using IID = GUID;
/// The identifier of a class.
using CLSID = GUID;

#endif
