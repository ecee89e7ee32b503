#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <optional>
#include <string>

/// The measurements of one run by benchmark name: medians over the repetitions, in nanoseconds per iteration, and
/// counts of blocks or bytes.
class Results {
public:
    void Put(const std::string& name, double value) { m_values[name] = value; }
    void PutError(const std::string& name, const std::string& error) { m_errors[name] = error; }

    std::optional<double> Value(const std::string& name) const;
    /// Returns the error of the benchmark, or an empty string if it reported none.
    std::string Error(const std::string& name) const;

private:
    std::map<std::string, double> m_values;
    std::map<std::string, std::string> m_errors;
};

/// Collects the medians while the benchmarks run. Prints nothing.
class ResultCollector : public benchmark::BenchmarkReporter {
public:
    explicit ResultCollector(Results& results) : m_results(results) {}
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

private:
    Results& m_results;
};

/// Returns a benchmark name such as "IsNameUniqueInSet/platform/1000".
inline std::string BenchmarkName(const std::string& name, int size) { return name + "/" + std::to_string(size); }
