#pragma once

/// A result code: negative is failure, zero or positive is success; callers test the sign only. It has 32 bits on every
/// platform: 0x80004005 would be positive in a `long` of 64 bits.
#ifdef _WIN32

#include <winerror.h> // defines the codes

using HRESULT = long; // identical to the system's declaration, so the order of headers does not matter
using ULONG = unsigned long;

#else

#include <cstdint>

using HRESULT = std::int32_t;
/// A count, such as a number of references.
using ULONG = std::uint32_t;

/// Success.
inline constexpr HRESULT S_OK = 0;
/// Failure without a registered error.
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005U);
/// The operation is not implemented.
inline constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001U);
/// The object does not offer the interface.
inline constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002U);
/// An argument that receives a result is a null pointer.
inline constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003U);
/// An argument has a value that the operation does not accept.
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057U);
/// A request failed for a reason that no other code describes.
inline constexpr HRESULT E_UNEXPECTED = static_cast<HRESULT>(0x8000FFFFU);

#endif

/// Returns true if the code means failure.
[[nodiscard]] constexpr bool Failed(HRESULT code) noexcept { return code < 0; }
