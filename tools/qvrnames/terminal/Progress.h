#pragma once

#include <chrono>
#include <cstddef>
#include <iosfwd>
#include <string>

/// Returns the progress of a run, such as "40 % of 30 documents, 20 s left". Without `done`, the remaining time is
/// unknown.
[[nodiscard]] std::string ProgressText(std::size_t done, std::size_t total, std::chrono::seconds elapsed);

/// A line on a terminal that shows the progress of a run over several documents. The line is first shown after a
/// second, so that a short run shows none.
class Progress {
public:
    /// @param isTerminal  false: nothing is printed
    Progress(std::ostream& out, bool isTerminal, std::size_t total)
        : m_out(out), m_isTerminal(isTerminal), m_total(total) {}

    /// Shows how many documents are done.
    void Show(std::size_t done);
    /// Removes the line, so that other output can follow.
    void Clear();

private:
    using Clock = std::chrono::steady_clock;

    std::ostream& m_out;
    bool m_isTerminal;
    std::size_t m_total;
    Clock::time_point m_start = Clock::now();
    bool m_isShown = false;
};
