#include "Results.h"

std::optional<double> Results::Value(Quantity quantity, const std::string& name) const {
    const auto found = m_values.find({quantity, name});
    return found == m_values.end() ? std::nullopt : std::optional(found->second);
}

std::string Results::Error(const std::string& name) const {
    const auto found = m_errors.find(name);
    return found == m_errors.end() ? "" : found->second;
}

bool ResultCollector::ReportContext(const Context&) { return true; }

void ResultCollector::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        const std::string& name = run.run_name.function_name;
        // Benchmarks with manual timing pass CPU time, which the library stores as real time.
        const bool isManual = run.run_name.time_type == "manual_time";
        if (run.error_occurred)
            m_results.PutError(name, run.error_message);
        else if (run.aggregate_name == "median")
            m_results.Put(Quantity::Time, name, isManual ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime());
        else if (run.aggregate_name == "cv")
            m_results.Put(Quantity::Spread, name, isManual ? run.real_accumulated_time : run.cpu_accumulated_time);
    }
}
