#pragma once

/// A result code: negative is failure, zero or positive is success; callers test the sign only.
/// 32 bits on every platform, so that 0x80004005 is negative also where `long` holds 64.
#ifdef _WIN32

#include <winerror.h> // the codes

using HRESULT = long; // as the system's headers have it: before or after this one they say the same again
using ULONG = unsigned long;

#else

#include <cstdint>

using HRESULT = std::int32_t;
/// A count, such as of references.
using ULONG = std::uint32_t;

/// Success.
inline constexpr HRESULT S_OK = 0;
/// A plain failure, without a registered error.
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005U);
/// The operation is not offered.
inline constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001U);
/// The object does not offer the interface.
inline constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002U);
/// Null where a result goes.
inline constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003U);
/// What the in-memory model answers to a request that it was told to fail, unless told otherwise.
inline constexpr HRESULT E_UNEXPECTED = static_cast<HRESULT>(0x8000FFFFU);

#endif

/// Whether the code is one of a failure.
constexpr bool Failed(HRESULT code) noexcept { return code < 0; }
