// Sets the locale of the program to the value of QVR_TEST_LOCALE. An unknown locale ends the program.

#include <cstdlib>
#include <locale>

namespace {

[[maybe_unused]] const bool isSet = [] {
    if (const char* name = std::getenv("QVR_TEST_LOCALE")) // NOLINT(concurrency-mt-unsafe): there is one thread yet
        std::locale::global(std::locale(name));            // also sets the C library's locale
    return true;
}();

} // namespace

// The leak checker calls this function by its name. The C library never frees the list of folders in LOCPATH.
// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" const char* __lsan_default_suppressions();
// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" const char* __lsan_default_suppressions() { return "leak:argz_add_sep\n"; }
