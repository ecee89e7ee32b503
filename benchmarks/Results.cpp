#include "Results.h"

std::optional<double> Results::Value(const std::string& name) const {
    const auto found = m_values.find(name);
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
        if (run.error_occurred)
            m_results.PutError(name, run.error_message);
        else if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
            // Benchmarks with manual timing pass CPU time, which the library stores as real time.
            m_results.Put(name, run.run_name.time_type == "manual_time" ? run.GetAdjustedRealTime()
                                                                        : run.GetAdjustedCPUTime());
    }
}
