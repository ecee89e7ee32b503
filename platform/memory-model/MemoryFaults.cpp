#include "memory-model/MemoryFaults.h"

#include <utility>

MemoryResponse MemoryFaults::ApplyRules(MemoryRequest request, const MemoryObject* object) {
    MemoryResponse response = kSuccess;
    bool found = false;
    // Each matching rule counts the request. The response is that of the first rule that is due.
    std::erase_if(m_rules, [&](Rule& rule) {
        const bool matches = (rule.request == MemoryRequest::Any || rule.request == request) &&
                             (rule.object == nullptr || rule.object == object);
        const bool due = matches && (rule.countdown == kAlways || --rule.countdown == 0);
        if (due && !std::exchange(found, true)) {
            response = rule.response;
            m_lastFault = request;
        }
        return due && rule.countdown != kAlways;
    });
    return response;
}
