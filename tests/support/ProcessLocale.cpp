// Puts the program under the locale that QVR_TEST_LOCALE names; a missing one ends it.

#include <cstdlib>
#include <locale>

namespace {

[[maybe_unused]] const bool isSet = [] {
    if (const char* name = std::getenv("QVR_TEST_LOCALE")) // NOLINT(concurrency-mt-unsafe): there is one thread yet
        std::locale::global(std::locale(name));            // the C library's as well
    return true;
}();

} // namespace

// The sanitizer asks for this name. The C library keeps the list of folders that LOCPATH names.
// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" const char* __lsan_default_suppressions();
// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" const char* __lsan_default_suppressions() { return "leak:argz_add_sep\n"; }
