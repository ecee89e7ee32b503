#pragma once

#include <benchmark/benchmark.h>

#include <filesystem>

class Results;

/// Each function registers the benchmarks of the source file with its name.
void RegisterCompareBenchmarks();
void RegisterValidityBenchmarks();
void RegisterHandleBenchmarks();
void RegisterScanBenchmarks();
void RegisterDocumentBenchmarks();
void RegisterIssuedNameBenchmarks();
void RegisterGenericNameBenchmarks();
void RegisterBatchBenchmarks();
/// Also writes the document that is audited to `folder`.
void RegisterAuditBenchmarks(const std::filesystem::path& folder);

/// Measures heap blocks and heap bytes. Call it before the benchmarks allocate memory.
void MeasureHeap(Results& results);
