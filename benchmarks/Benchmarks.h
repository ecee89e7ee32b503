#pragma once

#include <functional>
#include <string>

class Results;

/// A function that is measured. Returns false if its result is wrong.
using Operation = std::function<bool()>;

/// Registers an operation for the measurement of its time, its instructions and its requests.
/// @param prepare     returns the operation; called before each measurement and not measured
/// @param iterations  number of runs per measurement of time; 0: the benchmark library chooses it
void RegisterOperation(const std::string& name, const std::function<Operation()>& prepare, int iterations = 0);

/// Each function registers the operations of the source file with its name.
void RegisterCompareBenchmarks();
void RegisterValidityBenchmarks();
void RegisterHandleBenchmarks();
void RegisterScanBenchmarks();
void RegisterDocumentBenchmarks();
void RegisterCheckNamesBenchmarks();
void RegisterIssuedNameBenchmarks();
void RegisterGenericNameBenchmarks();
void RegisterBatchBenchmarks();

/// Registers the operations of all files.
void RegisterOperations();

/// Measures heap blocks and heap bytes. Call it before the benchmarks allocate memory.
void MeasureHeap(Results& results);

/// Returns a benchmark name such as "IsNameUniqueInSet/platform/1000".
inline std::string BenchmarkName(const std::string& name, int size) { return name + "/" + std::to_string(size); }
