#pragma once

#include <cstdint>

/// A 128-bit identifier of an interface or class. Two of them are the same when their bits are.
struct GUID {
    /// The upper 64 bits.
    std::uint64_t high = 0;
    /// The lower 64 bits.
    std::uint64_t low = 0;

    /// Whether all bits are the same.
    /// @{
    friend constexpr bool operator==(const GUID& a, const GUID& b) noexcept {
        return a.high == b.high && a.low == b.low;
    }
    friend constexpr bool operator!=(const GUID& a, const GUID& b) noexcept { return !(a == b); }
    /// @}
};

/// The identifier of an interface.
using IID = GUID;
/// The identifier of a class.
using CLSID = GUID;
