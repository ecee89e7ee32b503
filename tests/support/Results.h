#pragma once

#include "errors/ZFXError.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

/// Returns a result code as text: "S_OK"; "E_FAIL"; if an error is registered under the code, its message id and return
/// code ("DuplicateNameERR_02 -100", without a return code of 0); otherwise the number.
inline std::string ResultText(HRESULT code) {
    if (code == S_OK)
        return "S_OK";
    if (code == E_FAIL)
        return "E_FAIL";
    if (ZFXError* error = ZFXError::ZFXGetLastError(code, nullptr)) {
        const std::string id = error->GetMsgId();
        return error->GetReturnCode() == 0 ? id : id + " " + std::to_string(error->GetReturnCode());
    }
    return std::to_string(code);
}

/// Returns what an action writes on standard output.
template <class Action>
std::string CapturedOutput(Action action) {
    std::ostringstream written;
    std::streambuf* const before = std::cout.rdbuf(written.rdbuf());
    action();
    std::cout.rdbuf(before);
    return written.str();
}

/// Returns the contents of a file. Returns an empty text if it cannot be read.
inline std::string TextOf(const std::filesystem::path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

/// Returns the text in UTF-8.
inline std::string Narrow(const ZFXUnicodeString& text) { return text.ConvertToChar(); }

inline constexpr int kMillion = 1'000'000;
inline ZFXUnicodeString Repeated(char c, int times) { return {ZFXUnicodeChar(c), static_cast<std::size_t>(times)}; }
