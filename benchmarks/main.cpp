#include "Benchmarks.h"
#include "Budgets.h"
#include "Chart.h"
#include "Results.h"
#include "Table.h"

#include <cstring>
#include <iostream>
#include <malloc.h>
#include <vector>

namespace {

struct Options {
    std::filesystem::path folder = ".";
    std::vector<std::string> arguments; ///< for the benchmark library
};

Options ReadOptions(int argc, char** argv) {
    Options options;
    std::vector<std::string> others;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--out") == 0 && i + 1 < argc)
            options.folder = argv[++i];
        else
            others.emplace_back(argv[i]);
    }
    std::filesystem::create_directories(options.folder);
    options.arguments = {argv[0],
                         "--benchmark_enable_random_interleaving=true",
                         "--benchmark_repetitions=11",
                         "--benchmark_min_time=0.02",
                         "--benchmark_out_format=json",
                         "--benchmark_out=" + (options.folder / "qvr-bench.json").string()};
    options.arguments.insert(options.arguments.end(), others.begin(), others.end());
    return options;
}

/// Returns false if an argument is unknown.
bool InitializeLibrary(Options& options) {
    std::vector<char*> pointers;
    for (std::string& argument : options.arguments)
        pointers.push_back(argument.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    return !benchmark::ReportUnrecognizedArguments(count, pointers.data());
}

void RegisterAll(const std::filesystem::path& folder) {
    RegisterCompareBenchmarks();
    RegisterValidityBenchmarks();
    RegisterHandleBenchmarks();
    RegisterScanBenchmarks();
    RegisterDocumentBenchmarks();
    RegisterIssuedNameBenchmarks();
    RegisterGenericNameBenchmarks();
    RegisterBatchBenchmarks();
    RegisterAuditBenchmarks(folder);
}

} // namespace

/// Usage: qvr-bench [--out FOLDER] [options of the benchmark library]
/// Exit codes:
/// - 0: all results are within their budget
/// - 1: a result exceeds its budget or could not be measured
/// - 2: an argument is unknown
int main(int argc, char** argv) {
    Options options = ReadOptions(argc, argv);
    if (!InitializeLibrary(options))
        return 2;
    Results results;
    MeasureHeap(results);
    // The allocator keeps freed memory. Otherwise the times would include the system's work to provide new pages, which
    // depends on the benchmarks that ran before.
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    RegisterAll(options.folder);
    ResultCollector collector(results);
    benchmark::RunSpecifiedBenchmarks(&collector);
    const std::vector<BudgetResult> budgetResults = CheckBudgets(results);
    PrintTable(std::cout, budgetResults);
    WriteChart(options.folder / "qvr-bench.svg", results);
    return AreAllWithinBudget(budgetResults) ? 0 : 1;
}
