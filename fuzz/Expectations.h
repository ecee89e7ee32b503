#pragma once

#include "base/ZFXResult.h"
#include "text/ZFXUnicodeString.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Adds `count` to the number of checked calls of the library, which is printed when the program ends.
void CountOperations(int count) noexcept;

/// Replaces all registered errors of this thread by empty ones. libFuzzer compares the allocated memory before and
/// after each input, so the size of the registry must not change.
void OverwriteRegisteredErrors();

/// Checks an expectation. If it fails, prints `what`, which names the rule, and both values, and aborts the program.
/// @{
void ExpectTrue(bool condition, const char* what);
void ExpectEqual(std::u16string_view actual, std::u16string_view expected, const char* what);
void ExpectEqual(const ZFXUnicodeString& actual, std::u16string_view expected, const char* what);
void ExpectEqual(std::string_view actual, std::string_view expected, const char* what);
void ExpectEqual(long actual, long expected, const char* what);
/// @}

/// Returns a result code as text:
/// - "S_OK" or "E_FAIL"
/// - the message id of the error registered under the code, and its return code if there is one, such as
///   "IllegalCharERR_01 -100"
/// - otherwise the number
std::string ResultText(HRESULT code);

inline ZFXUnicodeString Wide(std::u16string_view text) { return ZFXUnicodeString(text); }

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count);
