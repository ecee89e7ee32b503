#pragma once

#include "base/ZFXResult.h"
#include "text/ZFXUnicodeString.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// So many operations of the library were run and their answers looked at. Their sum is told when the program ends.
void CountOperations(int count) noexcept;

/// The thread's registered errors give way to others that are always the same, so that after each input as much memory
/// is held as before it.
void ForgetErrors();

/// Ends the program, as a fault, unless the answer is the expected one. `what` names the rule.
/// @{
void ExpectThat(bool holds, const char* what);
void ExpectSame(std::u16string_view answer, std::u16string_view expected, const char* what);
void ExpectSame(const ZFXUnicodeString& answer, std::u16string_view expected, const char* what);
void ExpectSame(std::string_view answer, std::string_view expected, const char* what);
void ExpectSame(long answer, long expected, const char* what);
/// @}

/// A result code by its message: "S_OK", "E_FAIL", the message id of the error registered under it with the return
/// code that it carries ("IllegalCharERR_01 -100"), or the number.
std::string ResultText(HRESULT code);

inline ZFXUnicodeString Wide(std::u16string_view text) { return ZFXUnicodeString(text); }

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count);
