#include "Operations.h"

#include "errors/ZFXError.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>

namespace {

unsigned long long operations = 0;

void Tell() { std::fprintf(stderr, "operations: %llu\n", operations); }

/// ASCII as it is, everything else by its number.
std::string Readable(std::u16string_view text) {
    std::string told;
    for (const char16_t unit : text) {
        char escaped[8];
        std::snprintf(escaped, sizeof escaped, unit >= ' ' && unit < 0x7F && unit != '\\' ? "%c" : "\\u%04X", unit);
        told += escaped;
    }
    return told;
}

[[noreturn]] void Fault(const char* what, const std::string& answer, const std::string& expected) {
    std::fprintf(stderr, "FAULT: %s\n", what);
    if (answer != expected)
        std::fprintf(stderr, "  answer:   \"%s\"\n  expected: \"%s\"\n", answer.c_str(), expected.c_str());
    std::abort();
}

} // namespace

void CountOperations(int count) noexcept { operations += static_cast<unsigned long long>(count); }

void ForgetErrors() {
    for (int i = 0; i < ZFXError::kRegistered; ++i)
        ZFXError::GetReturn(ZFXErrorTypeInput, new ZFXInputError("", ""), nullptr, "", 0);
}

void ExpectThat(bool holds, const char* what) {
    if (!holds)
        Fault(what, {}, {});
}
void ExpectSame(std::u16string_view answer, std::u16string_view expected, const char* what) {
    if (answer != expected)
        Fault(what, Readable(answer), Readable(expected));
}
void ExpectSame(const ZFXUnicodeString& answer, std::u16string_view expected, const char* what) {
    ExpectSame(answer.Units(), expected, what);
}
void ExpectSame(std::string_view answer, std::string_view expected, const char* what) {
    if (answer != expected)
        Fault(what, std::string(answer), std::string(expected));
}
void ExpectSame(long answer, long expected, const char* what) {
    if (answer != expected)
        Fault(what, std::to_string(answer), std::to_string(expected));
}

std::string ResultText(HRESULT code) {
    if (code == S_OK)
        return "S_OK";
    if (code == E_FAIL)
        return "E_FAIL";
    const ZFXError* error = ZFXError::ZFXGetLastError(code, nullptr);
    if (error == nullptr)
        return std::to_string(code);
    std::string said = error->GetMsgId();
    if (error->GetReturnCode() != 0)
        said.append(" ").append(std::to_string(error->GetReturnCode()));
    return said;
}

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    std::cout.rdbuf(nullptr); // what refused names would have printed
    std::atexit(Tell);
    return 0;
}
