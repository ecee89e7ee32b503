#include "Operations.h"

#include "Benchmarks.h"
#include "Budgets.h"
#include "Scopes.h"

#include <benchmark/benchmark.h>
#include <valgrind/callgrind.h>

#include <vector>

namespace {

struct RegisteredOperation {
    std::string name;
    std::function<Operation()> prepare;
    int iterations;
};

std::vector<RegisteredOperation>& Registered() {
    static std::vector<RegisteredOperation> registered;
    return registered;
}

void MeasureTime(benchmark::State& state, const std::function<Operation()>& prepare) {
    const Operation operation = prepare();
    for (auto _ : state)
        if (!operation())
            state.SkipWithError("the result is wrong");
}

} // namespace

void RegisterOperation(const std::string& name, const std::function<Operation()>& prepare, int iterations) {
    Registered().push_back({name, prepare, iterations});
}

void RegisterOperations() {
    RegisterBatchBenchmarks(); // first, while no freed memory makes allocations slow
    RegisterCompareBenchmarks();
    RegisterValidityBenchmarks();
    RegisterHandleBenchmarks();
    RegisterScanBenchmarks();
    RegisterDocumentBenchmarks();
    RegisterCheckNamesBenchmarks();
    RegisterIssuedNameBenchmarks();
    RegisterGenericNameBenchmarks();
}

void RegisterTimes() {
    for (const RegisteredOperation& operation : Registered()) {
        auto* time = benchmark::RegisterBenchmark(operation.name.c_str(), MeasureTime, operation.prepare);
        if (operation.iterations > 0)
            time->Iterations(operation.iterations);
    }
}

bool WriteInstructionCounts(const std::regex& filter) {
    bool isCorrect = true;
    for (const RegisteredOperation& registered : Registered()) {
        if (!std::regex_search(registered.name, filter) || !AreInstructionsCompared(registered.name))
            continue;
        const Operation operation = registered.prepare();
        isCorrect = operation() && isCorrect; // the first run also allocates what is allocated once
        const long requests = Scopes::Model().Requests();
        CALLGRIND_START_INSTRUMENTATION;
        CALLGRIND_ZERO_STATS;
        isCorrect = operation() && isCorrect;
        CALLGRIND_STOP_INSTRUMENTATION;
        const std::string trigger = registered.name + ' ' + std::to_string(Scopes::Model().Requests() - requests);
        CALLGRIND_DUMP_STATS_AT(trigger.c_str());
    }
    return isCorrect;
}
