#pragma once

#include <cstdint>

/// A 128-bit identifier of an interface or class. Two of them are the same when their bits are.
struct GUID {
    std::uint64_t high = 0;
    std::uint64_t low = 0;

    friend constexpr bool operator==(const GUID& a, const GUID& b) noexcept {
        return a.high == b.high && a.low == b.low;
    }
    friend constexpr bool operator!=(const GUID& a, const GUID& b) noexcept { return !(a == b); }
};

using IID = GUID;
using CLSID = GUID;
