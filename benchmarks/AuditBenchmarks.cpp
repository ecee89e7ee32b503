#include "Benchmarks.h"

#include <sys/resource.h>
#include <sys/wait.h>

#include <fcntl.h>
#include <fstream>
#include <spawn.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kSteps = 50, kSetsInStep = 10, kFeaturesInSet = 200;

/// Writes a document of 100,000 features and one amplitude without a name. The names of the features are legal and
/// unique. The features are not propagating, so the scope of each name is its set.
void WriteDocument(const std::filesystem::path& file) {
    std::ofstream out(file);
    out << R"({"propertySet":{"features":[{"type":"QVRTabularAmplitudeLT","id":"new"}]},"cases":[{"name":"Static","steps":[)";
    int number = 0;
    for (int step = 1; step <= kSteps; ++step) {
        out << (step == 1 ? "" : ",\n") << R"({"type":"QVRStaticLPStepLT","name":"Step-)" << step << R"(","sets":[)";
        for (int set = 1; set <= kSetsInStep; ++set) {
            out << (set == 1 ? "" : ",\n") << R"({"type":"QVRLoadContainerLT","features":[)";
            for (int i = 1; i <= kFeaturesInSet; ++i)
                out << (i == 1 ? "" : ",") << R"({"type":"QVRPressure","name":"Pressure-)" << ++number
                    << R"(","withholds":["QVRIPropagatingFeature"]})";
            out << "]}";
        }
        out << "]}";
    }
    out << "]}]}\n";
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

/// Runs qvrnames, discards its output and returns its exit code. Returns -1 if it did not start or was killed.
int RunProgram(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), QVRNAMES_PROGRAM);
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (const int stream : {STDOUT_FILENO, STDERR_FILENO})
        posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const bool isStarted = posix_spawn(&child, QVRNAMES_PROGRAM, &actions, nullptr, pointers.data(), environ) == 0;
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    if (!isStarted || waitpid(child, &status, 0) != child || !WIFEXITED(status))
        return -1;
    return WEXITSTATUS(status);
}

/// Measures the CPU time of the whole program.
void TimeProgram(benchmark::State& state, const std::vector<std::string>& arguments) {
    for (auto _ : state) {
        const double before = ChildCpuSeconds();
        if (RunProgram(arguments) != 0)
            state.SkipWithError("qvrnames failed");
        state.SetIterationTime(ChildCpuSeconds() - before);
    }
}

void RegisterProgram(const char* name, const std::vector<std::string>& arguments) {
    benchmark::RegisterBenchmark(name, [=](benchmark::State& state) { TimeProgram(state, arguments); })
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(5);
}

} // namespace

void RegisterAuditBenchmarks(const std::filesystem::path& folder) {
    const std::string file = (folder / "qvr-bench-document.json").string();
    WriteDocument(file);
    RegisterProgram("Audit/audit", {"audit", file});
    RegisterProgram("Audit/load", {"propose", file, "new", "--base", "Amplitude-"});
}
