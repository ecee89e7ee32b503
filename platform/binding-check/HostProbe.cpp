#include "binding-check/HostProbe.h"

#include "analysis/AnalysisInterfaces.h"

namespace {

/// Returns true if `address` is that of the object's base `Interface`. A faulty QueryInterface can return the address
/// of another base; dynamic_cast finds the right one through the type information of the object.
template <class Interface>
bool IsAt(ZFXBaseUnknown* address) {
    return static_cast<void*>(dynamic_cast<Interface*>(address)) == static_cast<void*>(address);
}

std::string CastTo(const ProbedInterface& to) { return std::string("QueryInterface to ") + to.name; }

} // namespace

const std::vector<ProbedInterface> kProbedInterfaces = {
    {"ZFXBaseUnknown", IID_ZFXBaseUnknown, IsAt<ZFXBaseUnknown>},
#define ZFX_INTERFACE(name) {#name, IID_##name, IsAt<name>},
#include "object-model/ZFXInterfaces.def"
#undef ZFX_INTERFACE
};

void HostProbe::SetLateType(const char* lateType) {
    m_checked = std::string(" (late type of the checked object: \"") + lateType + "\")";
}

void HostProbe::Report(const std::string& operation, const std::string& fault, const char* section) {
    std::string sentence = operation + " " + fault + m_checked + ". See \"" + section + "\" in docs/bind-a-host.md.";
    if (m_report.size() == m_before || m_report.back() != sentence)
        m_report.push_back(std::move(sentence));
}

ZFXBaseUnknown* HostProbe::RawCast(ZFXBaseUnknown& from, const ProbedInterface& to, const ZFXBaseUnknown& identity) {
    const ULONG before = References(&from);
    const void* const unset = &to;
    void* result = const_cast<void*>(unset);
    const HRESULT code = from.QueryInterface(to.iid, &result);
    auto* const found = static_cast<ZFXBaseUnknown*>(result);
    const char* fault = nullptr;
    if (Failed(code)) {
        if (result == nullptr)
            return nullptr;
        fault = "fails without setting the interface pointer to null";
    } else if (result == nullptr || result == unset) {
        fault = "succeeds without an interface pointer";
    } else if (found->GetImpl() != &identity) {
        fault = "returns an interface whose GetImpl returns another object: call SetImpl, or override GetImpl";
    } else if (!to.isAt(found)) {
        fault = "returns the address of another base: convert with static_cast to the interface first";
    } else {
        return found;
    }
    Report(CastTo(to), fault, Section::kOwnCount);
    if (References(&from) > before)
        from.Release(); // the result cannot be used to release its reference
    return nullptr;
}

ZFXBaseUnknown_var HostProbe::Cast(ZFXBaseUnknown& from, const ProbedInterface& to, const ZFXBaseUnknown& identity) {
    const std::string operation = CastTo(to);
    const int faults = Faults();
    auto result = NewReference<ZFXBaseUnknown>(operation.c_str(), [&] { return RawCast(from, to, identity); });
    return Faults() == faults ? result : ZFXBaseUnknown_var();
}

void HostProbe::CheckCasts(ZFXBaseUnknown& object) {
    const ZFXBaseUnknown& identity = *object.GetImpl();
    std::vector<ZFXBaseUnknown_var> offered;
    for (const ProbedInterface& to : kProbedInterfaces) {
        offered.push_back(Cast(object, to, identity));
        if (Faults() > 0)
            return; // the other casts probably have this fault too
    }
    if (offered.front() == nullptr)
        Report(CastTo(kProbedInterfaces.front()), "fails: every object offers the root", Section::kOwnCount);
    // All interfaces of an object must offer what the object offers.
    for (std::size_t from = 0; from < offered.size(); ++from)
        for (std::size_t to = 0; to < offered.size() && offered[from] != nullptr; ++to)
            if ((Cast(*offered[from], kProbedInterfaces[to], identity) == nullptr) != (offered[to] == nullptr))
                Report(CastTo(kProbedInterfaces[to]),
                       std::string("differs between the object and its interface ") + kProbedInterfaces[from].name,
                       Section::kOwnCount);
    const ProbedInterface none{"an interface that does not exist", {0xFFFFFFFFU, 1, 2, {}}, IsAt<ZFXBaseUnknown>};
    if (Cast(object, none, identity) != nullptr)
        Report(CastTo(none), "succeeds", Section::kOwnCount);
}
