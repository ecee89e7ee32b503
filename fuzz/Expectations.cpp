#include "Expectations.h"

#include "errors/ZFXError.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <tuple>

namespace {

unsigned long long operations = 0;

void PrintOperationCount() { std::fprintf(stderr, "operations: %llu\n", operations); }

/// Returns the text with all units except printable ASCII as escapes, such as "\u00E9".
std::string Escaped(std::u16string_view text) {
    std::string result;
    for (const char16_t unit : text) {
        char escaped[8];
        std::snprintf(escaped, sizeof escaped, unit >= ' ' && unit < 0x7F && unit != '\\' ? "%c" : "\\u%04X", unit);
        result += escaped;
    }
    return result;
}

[[noreturn]] void Fail(const char* what, const std::string& actual, const std::string& expected) {
    std::fprintf(stderr, "FAULT: %s\n", what);
    if (actual != expected)
        std::fprintf(stderr, "  actual:   \"%s\"\n  expected: \"%s\"\n", actual.c_str(), expected.c_str());
    std::abort();
}

} // namespace

void CountOperations(int count) noexcept { operations += static_cast<unsigned long long>(count); }

void OverwriteRegisteredErrors() {
    for (int i = 0; i < ZFXError::kRegistered; ++i)
        std::ignore = ZFXError::GetReturn(ZFXErrorTypeInput, new ZFXInputError("", ""), nullptr, "", 0);
}

void ExpectTrue(bool condition, const char* what) {
    if (!condition)
        Fail(what, {}, {});
}
void ExpectEqual(std::u16string_view actual, std::u16string_view expected, const char* what) {
    if (actual != expected)
        Fail(what, Escaped(actual), Escaped(expected));
}
void ExpectEqual(const ZFXUnicodeString& actual, std::u16string_view expected, const char* what) {
    ExpectEqual(actual.Units(), expected, what);
}
void ExpectEqual(std::string_view actual, std::string_view expected, const char* what) {
    if (actual != expected)
        Fail(what, std::string(actual), std::string(expected));
}
void ExpectEqual(long actual, long expected, const char* what) {
    if (actual != expected)
        Fail(what, std::to_string(actual), std::to_string(expected));
}

std::string ResultText(HRESULT code) {
    if (code == S_OK)
        return "S_OK";
    if (code == E_FAIL)
        return "E_FAIL";
    const ZFXError* error = ZFXError::ZFXGetLastError(code, nullptr);
    if (error == nullptr)
        return std::to_string(code);
    std::string result = error->GetMsgId();
    if (error->GetReturnCode() != 0)
        result.append(" ").append(std::to_string(error->GetReturnCode()));
    return result;
}

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    std::cout.rdbuf(nullptr); // suppresses the messages about rejected names
    std::atexit(PrintOperationCount);
    return 0;
}
