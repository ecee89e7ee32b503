#include "QVRNameUtil.h"

#include "LateTypes.h"
#include "internal/Navigation.h"
#include "internal/Numbering.h"
#include "internal/ScopeNames.h"

#include <cassert>

namespace {

/// Returns an allocator for `count` names. The numbers after the base in the scope are marked as used.
Numbering::NumberAllocator AllocatorFor(const ZFXUnicodeString& base, const ZFXListValZFXBaseUnknown_var& scope,
                                        int count) {
    assert(count > 0);
    Numbering::NumberAllocator numbers(static_cast<std::size_t>(scope.Size()) + static_cast<std::size_t>(count));
    ForEachPrefetched(scope, [&](const ZFXBaseUnknown_var& object) {
        numbers.MarkUsed(Numbering::NumberAfter(base, NameOf(object)));
        return true;
    });
    return numbers;
}

} // namespace

HRESULT QVRNameUtil::GetNextUniqueName(ZFXUnicodeString& name, const ZFXListValZFXBaseUnknown_var& scope) noexcept {
    name = Numbering::NumberedName(name, AllocatorFor(name, scope, 1).Allocate());
    return S_OK;
}

HRESULT QVRNameUtil::GetNextUniqueNames(ZFXUnicodeString& name, const ZFXListValZFXBaseUnknown_var& scope, int count,
                                        ZFXListValZFXUnicodeString& names) noexcept {
    if (count < 1)
        return E_FAIL;
    Numbering::NumberAllocator numbers = AllocatorFor(name, scope, count);
    names.Reserve(names.Size() + count);
    for (int i = 0; i < count; ++i)
        names.Append(Numbering::NumberedName(name, numbers.Allocate()));
    return S_OK;
}

HRESULT QVRNameUtil::GetNextUniqueName(ZFXUnicodeString& name, const ZFXISamAnalysisSet_var& set) noexcept {
    ZFXListValZFXBaseUnknown_var scope;
    if (set == nullptr || Failed(Navigation::AppendMembers(set, scope)))
        return E_FAIL;
    return GetNextUniqueName(name, scope);
}

HRESULT QVRNameUtil::CreateBaseName(ZFXISpecObject_var& feature, ZFXUnicodeString& baseName) noexcept {
    if (feature == nullptr)
        return E_FAIL;
    const ZFXUnicodeString lateType = feature->GetLateType();
    for (const LateTypes::Row& row : LateTypes::kRows) {
        if (row.baseName == nullptr || lateType != row.lateType)
            continue;
        baseName = row.baseName;
        break;
    }
    return S_OK;
}
