#include "terminal/Progress.h"

#include <cassert>
#include <ostream>

std::string ProgressText(std::size_t done, std::size_t total, std::chrono::seconds elapsed) {
    assert(done < total);
    std::string text = std::to_string(100 * done / total) + " % of " + std::to_string(total) + " documents";
    if (done > 0)
        text += ", " + std::to_string(static_cast<std::size_t>(elapsed.count()) * (total - done) / done) + " s left";
    return text;
}

void Progress::Show(std::size_t done) {
    const auto elapsed = std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - m_start);
    if (!m_isTerminal || elapsed < std::chrono::seconds(1))
        return;
    m_out << '\r' << ProgressText(done, m_total, elapsed) << "\x1B[K" << std::flush; // erases the rest of the line
    m_isShown = true;
}

void Progress::Clear() {
    if (m_isShown)
        m_out << "\r\x1B[K" << std::flush;
    m_isShown = false;
}
