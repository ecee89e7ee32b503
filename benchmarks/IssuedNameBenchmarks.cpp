#include "Benchmarks.h"
#include "QVRGenI18NUtils.h"
#include "Scopes.h"

#include <vector>

namespace {

constexpr int kBatch = 100; // names that are issued per operation

/// Clears the list of issued names and appends n different names.
void FillIssuedNames(int n) {
    QVRGenI18NUtils* names = QVRGenI18NUtils::Instance();
    names->ResetAllLists();
    for (int i = 1; i <= n; ++i)
        names->PushNameToList(Scopes::NumberedName("QVRGeneric", i));
}

/// Returns ten of the n issued names, evenly spread. The number is small because a deck has features of few types.
std::vector<ZFXUnicodeString> TenOf(int n) {
    std::vector<ZFXUnicodeString> names;
    for (int i = 1; i <= 10; ++i)
        names.push_back(Scopes::NumberedName("QVRGeneric", i * (n / 10)));
    return names;
}

/// Issues kBatch names: looks up how often a name was issued, then records it.
Operation IssueAmong(int n) {
    FillIssuedNames(n);
    return [names = TenOf(n)] {
        QVRGenI18NUtils* issued = QVRGenI18NUtils::Instance();
        int failures = 0;
        for (int i = 0; i < kBatch; ++i) {
            const ZFXUnicodeString& name = names[static_cast<std::size_t>(i) % names.size()];
            int count = 0;
            failures += issued->FindNameAndNextID(name, count) != 0 ? 0 : 1;
            issued->PushNameToList(name);
        }
        return failures == 0;
    };
}

} // namespace

void RegisterIssuedNameBenchmarks() {
    // Each run makes the list longer, so the number of runs is limited.
    for (const int n : {100, Scopes::kLargest})
        RegisterOperation(
            BenchmarkName("IssueName", n), [n] { return IssueAmong(n); }, 10);
}
