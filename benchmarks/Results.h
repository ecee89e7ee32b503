#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <optional>
#include <string>
#include <utility>

enum class Quantity {
    Time,         ///< nanoseconds: the median of all repetitions
    Spread,       ///< standard deviation of the time, as a fraction of its mean
    Instructions, ///< of one run, counted by callgrind
    Requests,     ///< of one run, to the document
    Blocks,       ///< on the heap
    Bytes         ///< on the heap
};

/// The results of one run by benchmark name.
class Results {
public:
    void Put(Quantity quantity, const std::string& name, double value) { m_values[{quantity, name}] = value; }
    void PutError(const std::string& name, const std::string& error) { m_errors[name] = error; }

    std::optional<double> Value(Quantity quantity, const std::string& name) const;
    /// Returns the error of the benchmark, or an empty string if it reported none.
    std::string Error(const std::string& name) const;

private:
    std::map<std::pair<Quantity, std::string>, double> m_values;
    std::map<std::string, std::string> m_errors;
};

/// Collects the times while the benchmarks run. Prints nothing.
class ResultCollector : public benchmark::BenchmarkReporter {
public:
    explicit ResultCollector(Results& results) : m_results(results) {}
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

private:
    Results& m_results;
};
