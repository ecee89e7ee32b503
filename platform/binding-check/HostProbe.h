#pragma once

#include "object-model/ZFXInterfaces.h"

#include <string>
#include <vector>

/// The headings of the sections of docs/bind-a-host.md to which reports refer.
namespace Section {
inline constexpr const char* kCasts = "Objects and their interfaces";
inline constexpr const char* kLink = "Link the library";
inline constexpr const char* kOwnCount = "Objects with a reference count of your own";
inline constexpr const char* kFeatures = "Features: late type, father, name";
inline constexpr const char* kScopes = "Scopes: where names are compared and numbered";
inline constexpr const char* kServices = "Services: requests about the whole document";
inline constexpr const char* kOwnership = "Ownership of results";
inline constexpr const char* kErrors = "Messages, errors, locale, caches, threads";
} // namespace Section

/// An interface of the platform, for a cast.
struct ProbedInterface {
    const char* name;
    IID iid;
    /// Returns true if the interface pointer of the object has this address.
    bool (*isAt)(ZFXBaseUnknown* address);
};
/// All interfaces, the root first.
extern const std::vector<ProbedInterface> kProbedInterfaces;

/// Makes calls to a host and reports faults. Continues after an exception or a missing reference.
class HostProbe {
public:
    explicit HostProbe(std::vector<std::string>& report) : m_report(report), m_before(report.size()) {}

    /// Adds the late type of the checked object to all further sentences.
    void SetLateType(const char* lateType);
    /// Appends a sentence to the report, unless this probe appended it last.
    void Report(const std::string& operation, const std::string& fault, const char* section);
    /// Returns the number of sentences that this probe appended.
    int Faults() const { return static_cast<int>(m_report.size() - m_before); }

    /// Makes a call. If it throws, reports the exception and returns false; otherwise returns true.
    template <class Call>
    bool Run(const char* operation, Call call) {
        try {
            call();
            return true;
        } catch (...) {
            Report(operation, "throws an exception: no operation may throw", Section::kOwnership);
            return false;
        }
    }

    /// Makes a call that is marked [new reference], twice. Reports a result with no new reference or more than one.
    /// Returns the result with a reference of the probe, or an empty handle if the call returned null or threw.
    template <class Interface, class Call>
    ZFXHandle<Interface> NewReference(const char* operation, Call call) {
        Interface* first = nullptr;
        Interface* second = nullptr;
        if (!Run(operation, [&] { first = call(); }) || first == nullptr)
            return {};
        ZFXHandle<Interface> kept(first); // the result may have no reference
        const ULONG before = References(first);
        if (!Run(operation, [&] { second = call(); }) || second == nullptr)
            return kept;
        if (second != first) { // a new object for each call
            second->Release();
            first->Release();
            return kept;
        }
        const ULONG added = References(first) - before;
        if (added == 0)
            Report(operation, "returns an object without a new reference: its release destroys the object too early",
                   Section::kOwnership);
        if (added > 1)
            Report(operation, "returns an object with more than one new reference: it is never destroyed",
                   Section::kOwnership);
        for (ULONG left = added == 0 ? 0 : 2 * added; left > 0; --left)
            first->Release();
        return kept;
    }

    /// Checks all casts from the object to its interfaces and between its interfaces.
    void CheckCasts(ZFXBaseUnknown& object);

    /// Returns the number of references of the object that an interface pointer belongs to.
    static ULONG References(ZFXBaseUnknown* object) {
        object->AddRef();
        return object->Release();
    }

private:
    ZFXBaseUnknown_var Cast(ZFXBaseUnknown& from, const ProbedInterface& to, const ZFXBaseUnknown& identity);
    ZFXBaseUnknown* RawCast(ZFXBaseUnknown& from, const ProbedInterface& to, const ZFXBaseUnknown& identity);

    std::vector<std::string>& m_report;
    std::size_t m_before;
    std::string m_checked; // " (...)", or empty
};
