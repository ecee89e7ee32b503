#pragma once

#include <benchmark/benchmark.h>

#include <filesystem>

class Results;

/// Each registers the benchmarks of the source file of that name.
void RegisterCompareBenchmarks();
void RegisterValidityBenchmarks();
void RegisterHandleBenchmarks();
void RegisterScanBenchmarks();
void RegisterDocumentBenchmarks();
void RegisterHandOutBenchmarks();
void RegisterMetObjectBenchmarks();
void RegisterBatchBenchmarks();
/// Writes its document into the folder.
void RegisterAuditBenchmarks(const std::filesystem::path& folder);

/// Counts blocks and bytes of the heap; to be called before anything else fills it.
void MeasureHeap(Results& results);
