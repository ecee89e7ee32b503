#pragma once

// The compiler extensions that the sources use, each with a portable form. No other file contains one: `./dev lint`
// checks this. A build that defines ZFX_NO_COMPILER_EXTENSIONS uses the portable forms with every compiler.

#if defined(__GNUC__) && !defined(ZFX_NO_COMPILER_EXTENSIONS)
/// Expands to its arguments if the compiler has the GNU extensions, otherwise to nothing.
#define ZFX_GNU(...) __VA_ARGS__
/// Written after a number type, makes it a vector of `bytes` bytes. Not defined without the extensions.
#define ZFX_VECTOR(bytes) __attribute__((vector_size(bytes)))
#else
#define ZFX_GNU(...)
#endif

/// Exports a symbol from the shared library that is compiled, imports it from another library, or hides it from other
/// libraries. Without the extensions, a library on ELF exports all its symbols. On Windows there is no portable form.
/// @{
#ifdef _WIN32
#define ZFX_EXPORT __declspec(dllexport)
#define ZFX_IMPORT __declspec(dllimport)
#define ZFX_HIDDEN // a library exports only what is marked
#else
#define ZFX_EXPORT ZFX_GNU(__attribute__((visibility("default"))))
#define ZFX_IMPORT ZFX_EXPORT
#define ZFX_HIDDEN ZFX_GNU(__attribute__((visibility("hidden"))))
#endif
/// @}

/// Prevents the inlining of a function.
#define ZFX_NOINLINE ZFX_GNU(__attribute__((noinline)))
/// Marks a function that is rarely called.
#define ZFX_COLD ZFX_GNU(__attribute__((cold)))
/// Makes a thread-local variable of a shared library accessible without a function call.
#define ZFX_INITIAL_EXEC ZFX_GNU(__attribute__((tls_model("initial-exec"))))

/// Loads the memory at an address, which can be invalid, into the caches of the processor.
inline void ZFXPrefetch([[maybe_unused]] const void* address) noexcept { ZFX_GNU(__builtin_prefetch(address)); }

/// True if the code is compiled with AddressSanitizer.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kZFXAddressSanitizer = true;
#elif defined(__has_feature)
inline constexpr bool kZFXAddressSanitizer = __has_feature(address_sanitizer);
#else
inline constexpr bool kZFXAddressSanitizer = false;
#endif
