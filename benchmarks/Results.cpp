#include "Results.h"

std::optional<double> Results::Value(const std::string& name) const {
    const auto found = m_values.find(name);
    return found == m_values.end() ? std::nullopt : std::optional(found->second);
}

std::string Results::Reason(const std::string& name) const {
    const auto found = m_reasons.find(name);
    return found == m_reasons.end() ? "" : found->second;
}

bool ResultCollector::ReportContext(const Context&) { return true; }

void ResultCollector::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        const std::string& name = run.run_name.function_name;
        if (run.error_occurred)
            m_results.PutReason(name, run.error_message);
        else if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
            // Benchmarks that time themselves hand in the processor's time too, which the library files as real.
            m_results.Put(name, run.run_name.time_type == "manual_time" ? run.GetAdjustedRealTime()
                                                                        : run.GetAdjustedCPUTime());
    }
}
