#include "Programs.h"

#include <benchmark/benchmark.h>

#include <sys/resource.h>

#include <fstream>

namespace {

constexpr int kSteps = 10, kFeatures = 100000;

/// Writes a case with loads in ten steps. The names are legal and unique. One load has the id "load".
void WriteLoads(const std::string& file) {
    std::ofstream out(file);
    out << R"({"cases":[{"name":"Static","steps":[)";
    int number = 0;
    for (int step = 1; step <= kSteps; ++step) {
        out << (step == 1 ? "" : ",") << R"({"type":"QVRStaticLPStepLT","name":"Step-)" << step
            << R"(","sets":[{"type":"QVRLoadContainerLT","features":[{"type":"QVRPressure","name":"Load-)" << step
            << (step == 1 ? R"(","id":"load"})" : R"("})");
        for (int i = 1; i < kFeatures / kSteps; ++i)
            out << ",\n"
                << R"({"type":"QVRPressure","name":"Pressure-)" << ++number << R"("})";
        out << "]}]}";
    }
    out << "]}]}\n";
}

/// Writes a document of materials, whose names are legal and unique.
void WriteMaterials(const std::string& file) {
    std::ofstream out(file);
    out << R"({"materials":[)";
    for (int i = 1; i <= kFeatures; ++i)
        out << (i == 1 ? "" : ",\n") << R"({"name":"Steel-)" << i << R"("})";
    out << "]}\n";
}

/// Returns the CPU time of all child processes that have ended.
double ChildCpuSeconds() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void MeasureTime(benchmark::State& state, const Command& command) {
    for (auto _ : state) {
        const double before = ChildCpuSeconds();
        if (Process(command).Wait() != 0)
            state.SkipWithError("the program failed");
        state.SetIterationTime(ChildCpuSeconds() - before);
    }
}

} // namespace

Programs WriteDocuments(const std::filesystem::path& folder) {
    const std::string loads = (folder / "qvr-bench-loads.json").string();
    const std::string materials = (folder / "qvr-bench-materials.json").string();
    WriteLoads(loads);
    WriteMaterials(materials);
    const std::string qvrnames = QVRNAMES_PROGRAM;
    return {{"qvrnames/load", "load", {LOADING_PROGRAM, loads}},
            {"qvrnames/audit", "audit", {qvrnames, "audit", loads}},
            {"qvrnames/propose", "propose", {qvrnames, "propose", loads, "load"}},
            {"qvrnames/rename",
             "rename",
             {qvrnames, "rename", loads, "load", "Unused", "--output", (folder / "renamed.json").string()}},
            {"qvrnames/load-materials", "load-materials", {LOADING_PROGRAM, materials}},
            {"qvrnames/audit-deck", "audit-deck", {qvrnames, "audit", "--deck", materials}}};
}

void RegisterTimes(const Programs& programs) {
    for (const Program& program : programs)
        benchmark::RegisterBenchmark(program.name.c_str(), MeasureTime, program.command)
            ->UseManualTime()
            ->Iterations(1)
            ->Repetitions(5);
}
