#include "QVRNameUtil.h"

#include "errors/ZFXError.h"
#include "internal/NameScopes.h"
#include "internal/Numbering.h"
#include "internal/ScopeNames.h"
#include "internal/Vocabulary.h"

#include <tuple>

namespace {

ZFXUnicodeString LowerCase(ZFXUnicodeString text) {
    text.ToLower();
    return text;
}

} // namespace

HRESULT QVRNameUtil::GetUniqueNameForJob(ZFXUnicodeString& name) noexcept {
    const ZFXListValZFXISpecObject_var jobs = NameScopes::AllJobs();
    const ZFXUnicodeString base = LowerCase(Vocabulary::JobBase);
    Numbering::NumberAllocator numbers(static_cast<std::size_t>(jobs.Size()) + 1);
    for (int i = 1; i <= jobs.Size(); ++i)
        numbers.MarkUsed(Numbering::NumberAfter(base, LowerCase(NameOf(jobs[i]))));
    name = Numbering::NumberedName(Vocabulary::JobBase, numbers.Allocate());
    return S_OK;
}

HRESULT QVRNameUtil::IsUniqueNameForJob(const ZFXISpecObject_var& job, const ZFXUnicodeString& name) noexcept {
    const NameScopes::Scope scope = NameScopes::JobsOfDocument{};
    const ZFXBaseUnknown* self = ZFXIdentityOf(job);
    return Raise(QVR_HERE,
                 NameScopes::CompareWith(scope, {}, [&](const ZFXListValZFXBaseUnknown_var& jobs) -> Decision {
                     for (const ZFXBaseUnknown_var& other : jobs)
                         if (ZFXIdentityOf(other) != self && NamesClash(name, NameOf(other)))
                             return NameScopes::ComparisonFailed(scope, MessageId::DuplicateNameERR_02, other);
                     return {};
                 }));
}

HRESULT QVRNameUtil::GetUniqueNameForMeshPart(ZFXISpecObject_var& meshPart, ZFXUnicodeString& name) noexcept {
    ZFXListValZFXBaseUnknown_var meshParts;
    const HRESULT code = Raise(QVR_HERE, NameScopes::AppendMeshParts(meshPart, meshParts));
    if (Failed(code))
        return code;
    std::ignore = GetNextUniqueName(name, meshParts); // always S_OK
    return ZFXError::GetReturn(ZFXErrorTypeSuccess, nullptr, nullptr, __FILE__, __LINE__);
}
