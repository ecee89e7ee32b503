#include "QVRNameUtil.h"

#include "analysis/WorkbenchUtilities.h"
#include "internal/Names.h"
#include "internal/Numbering.h"
#include "internal/Refusal.h"
#include "internal/Vocabulary.h"

namespace {

/// Every job of every case of the current document. What cannot be listed is left out.
ZFXListValZFXISpecObject_var AllJobs() {
    ZFXListValZFXBaseUnknown_var cases;
    QVRAnalysisDocUtils::GetAllAnalysisCases(cases, nullptr);
    ZFXListValZFXISpecObject_var jobs;
    QVRAnalysisDocUtils::GetJobs(cases, jobs);
    return jobs;
}

ZFXUnicodeString Lowered(ZFXUnicodeString text) {
    text.ToLower();
    return text;
}

} // namespace

HRESULT QVRNameUtil::GetUniqueNameForJob(ZFXUnicodeString& name) noexcept {
    const ZFXListValZFXISpecObject_var jobs = AllJobs();
    const ZFXUnicodeString base = Lowered(Vocabulary::JobBase);
    Numbering::InUse numbers(static_cast<std::size_t>(jobs.Size()) + 1);
    for (int i = 1; i <= jobs.Size(); ++i)
        numbers.Add(Numbering::NumberAfter(base, Lowered(NameOf(jobs[i]))));
    name = Numbering::Numbered(Vocabulary::JobBase, numbers.Take());
    return S_OK;
}

HRESULT QVRNameUtil::IsUniqueNameForJob(const ZFXISpecObject_var& job, const ZFXUnicodeString& name) noexcept {
    const ZFXListValZFXISpecObject_var jobs = AllJobs();
    const ZFXBaseUnknown* self = ZFXIdentityOf(job);
    for (int i = 1; i <= jobs.Size(); ++i)
        if (ZFXIdentityOf(jobs[i]) != self && NamesClash(name, NameOf(jobs[i])))
            return InputErrorReturn(MessageId::DuplicateNameERR_03);
    return S_OK;
}
