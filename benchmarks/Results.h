#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <optional>
#include <string>

/// What one run measured, by the names of the benchmarks: medians of the repetitions in nanoseconds for one
/// iteration, and what was counted, in its own unit.
class Results {
public:
    void Put(const std::string& name, double value) { m_values[name] = value; }
    void PutReason(const std::string& name, const std::string& reason) { m_reasons[name] = reason; }

    std::optional<double> Value(const std::string& name) const;
    /// Why there is no value; empty when that is not known.
    std::string Reason(const std::string& name) const;

private:
    std::map<std::string, double> m_values;
    std::map<std::string, std::string> m_reasons;
};

/// Collects the medians while the benchmarks run, and prints none of them.
class ResultCollector : public benchmark::BenchmarkReporter {
public:
    explicit ResultCollector(Results& results) : m_results(results) {}
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

private:
    Results& m_results;
};

/// "IsNameUniqueInSet/platform" and 1000 give "IsNameUniqueInSet/platform/1000".
inline std::string Sized(const std::string& name, int size) { return name + "/" + std::to_string(size); }
