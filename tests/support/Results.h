#pragma once

#include "errors/ZFXError.h"

#include <iostream>
#include <sstream>
#include <string>

/// A result code as a test reads it: "S_OK", "E_FAIL", the message id of the error registered under it, with
/// the return code that the error carries ("DuplicateNameERR_02 -100"), or the number.
inline std::string ResultText(HRESULT code) {
    if (code == S_OK)
        return "S_OK";
    if (code == E_FAIL)
        return "E_FAIL";
    if (ZFXError* error = ZFXError::ZFXGetLastError(code, nullptr)) {
        std::string said = error->GetMsgId();
        if (error->GetReturnCode() != 0)
            said.append(" ").append(std::to_string(error->GetReturnCode()));
        return said;
    }
    return std::to_string(code);
}

/// What an action writes on standard output.
template <class Action>
std::string CapturedOutput(Action action) {
    std::ostringstream written;
    std::streambuf* const before = std::cout.rdbuf(written.rdbuf());
    action();
    std::cout.rdbuf(before);
    return written.str();
}

/// Texts in tables: UTF-8 in, UTF-8 out.
inline std::string Text(const ZFXUnicodeString& text) { return text.ConvertToChar(); }

inline constexpr int kMillion = 1'000'000;
inline ZFXUnicodeString Repeated(char c, int times) { return {ZFXUnicodeChar(c), static_cast<std::size_t>(times)}; }
