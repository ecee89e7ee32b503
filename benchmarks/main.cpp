#include "Benchmarks.h"
#include "Budgets.h"
#include "InstructionCounts.h"
#include "Operations.h"
#include "Results.h"
#include "Table.h"

#include <benchmark/benchmark.h>

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

/// Makes the allocator keep freed memory. Otherwise the times would include the system's work to provide new pages,
/// which depends on the benchmarks that ran before.
void KeepFreedMemory() {
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
}

} // namespace

/// Usage: qvr-bench [--out FOLDER] [options of the benchmark library]
///        qvr-bench --count FILTER    (under callgrind; used by the other form)
/// Exit codes:
/// - 0: all results are within their budget
/// - 1: a result exceeds its budget or could not be measured
/// - 2: an argument is unknown
int main(int argc, char** argv) {
    KeepFreedMemory();
    RegisterOperations();
    if (argc == 3 && std::strcmp(argv[1], "--count") == 0)
        return WriteInstructionCounts(std::regex(argv[2])) ? 0 : 1;
    Options options = ReadOptions(argc, argv);
    if (!InitializeLibrary(options))
        return 2;
    Results results;
    MeasureHeap(results);
    const Programs programs = WriteDocuments(options.folder);
    CountInstructions(argv[0], benchmark::GetBenchmarkFilter(), programs, options.folder / "counts", results);
    RegisterTimes();
    RegisterTimes(programs);
    ResultCollector collector(results);
    benchmark::RunSpecifiedBenchmarks(&collector);
    const std::vector<BudgetResult> budgetResults = CheckBudgets(results);
    PrintTable(std::cout, budgetResults);
    return AreAllWithinBudget(budgetResults) ? 0 : 1;
}
