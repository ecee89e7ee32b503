#pragma once

#include "memory-model/MemoryModel.h"

#include <vector>

/// Counts the requests to a model, injects responses, and records requests with unexpected arguments.
class MemoryFaults {
public:
    /// Counts a request on `object`, or on the services if `object` is null. Returns the injected response, or kSuccess
    /// if none is due.
    MemoryResponse BeginRequest(MemoryRequest request, const MemoryObject* object) {
        ++m_requests;
        return m_rules.empty() ? kSuccess : ApplyRules(request, object);
    }
    /// Returns the number of requests.
    long Requests() const noexcept { return m_requests; }

    /// Injects `response` into the n-th of these requests, or into all of them if n is kAlways.
    /// @param request  MemoryRequest::Any for requests of any kind
    /// @param object   the object that the request is made on, or null for any
    void Add(MemoryRequest request, const MemoryObject* object, long n, MemoryResponse response) {
        m_rules.push_back({request, object, n, response});
    }
    /// Returns the last request that received an injected response since Clear, or MemoryRequest::Any if there is none.
    MemoryRequest LastFault() const noexcept { return m_lastFault; }
    /// Removes all injected responses and resets LastFault.
    void Clear() {
        m_rules.clear();
        m_lastFault = MemoryRequest::Any;
    }

    /// Records a request with an unexpected argument. Only the first is kept.
    void RecordUnexpectedArgument(MemoryRequest request) noexcept {
        if (m_unexpected == MemoryRequest::Any)
            m_unexpected = request;
    }
    /// Returns the first recorded request, or MemoryRequest::Any if there is none.
    MemoryRequest FirstUnexpectedArgument() const noexcept { return m_unexpected; }

    static constexpr MemoryResponse kSuccess{S_OK, true};
    static constexpr long kAlways = -1;

private:
    struct Rule {
        MemoryRequest request;
        const MemoryObject* object; // null: any
        long countdown;             // matching requests until the response is due; kAlways: due each time
        MemoryResponse response;
    };
    MemoryResponse ApplyRules(MemoryRequest request, const MemoryObject* object);

    std::vector<Rule> m_rules;
    long m_requests = 0;
    MemoryRequest m_lastFault = MemoryRequest::Any;  // none
    MemoryRequest m_unexpected = MemoryRequest::Any; // none
};
