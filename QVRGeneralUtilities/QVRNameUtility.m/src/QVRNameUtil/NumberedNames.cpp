#include "QVRNameUtil.h"

#include "QVRGenI18NUtils.h"
#include "analysis/ZFXIAlias.h"
#include "internal/Names.h"
#include "internal/Navigation.h"
#include "internal/Numbering.h"
#include "internal/Walk.h"

namespace {

/// The numbers behind the base in a scope, with room for some more.
Numbering::InUse NumbersInUse(const ZFXUnicodeString& base, const ZFXListValZFXBaseUnknown_var& scope, int more) {
    Numbering::InUse numbers(static_cast<std::size_t>(scope.Size()) + static_cast<std::size_t>(more));
    Walk(scope, [&](const ZFXBaseUnknown_var& object) {
        numbers.Add(Numbering::NumberAfter(base, NameOf(object)));
        return true;
    });
    return numbers;
}

} // namespace

HRESULT QVRNameUtil::GetNextUniqueName(ZFXUnicodeString& name, const ZFXListValZFXBaseUnknown_var& scope) noexcept {
    name = Numbering::Numbered(name, NumbersInUse(name, scope, 1).Take());
    return S_OK;
}

HRESULT QVRNameUtil::GetNextUniqueNames(ZFXUnicodeString& name, const ZFXListValZFXBaseUnknown_var& scope, int count,
                                        ZFXListValZFXUnicodeString& names) noexcept {
    if (count < 1)
        return E_FAIL;
    Numbering::InUse numbers = NumbersInUse(name, scope, count);
    names.Reserve(names.Size() + count);
    for (int i = 0; i < count; ++i)
        names.Append(Numbering::Numbered(name, numbers.Take()));
    return S_OK;
}

HRESULT QVRNameUtil::GetNextUniqueName(ZFXUnicodeString& name, const ZFXISamAnalysisSet_var& set) noexcept {
    ZFXListValZFXBaseUnknown_var scope;
    if (set == nullptr || Failed(Navigation::AppendMembers(set, scope)))
        return E_FAIL;
    return GetNextUniqueName(name, scope);
}

HRESULT QVRNameUtil::GenerateUniqueName(const ZFXISpecObject& feature, ZFXUnicodeString& name) noexcept {
    // The platform's operations are not constant; these two only read.
    const ZFXISpecObject_var object(const_cast<ZFXISpecObject*>(&feature));
    const ZFXIAlias_var alias(object);
    if (alias == nullptr)
        return E_FAIL;
    const ZFXUnicodeString current = alias->GetAlias();
    ZFXUnicodeString offending;
    if (!Failed(DoesNameContainDoubleByteChar(current, offending))) {
        name = current;
        return S_OK;
    }
    const ZFXUnicodeString lateType = object->GetLateType();
    if (lateType.SearchSubString("SAM", 0, ZFXUnicodeString::SearchForward) != 0) {
        name = current;
        return S_OK;
    }
    QVRGenI18NUtils* handedOut = QVRGenI18NUtils::Instance();
    int count = 0;
    const bool again = handedOut->FindNameAndNextID(lateType, count) != 0;
    name = again ? Numbering::Numbered(lateType + "-", count) : lateType;
    handedOut->PushNameToList(lateType);
    return S_OK;
}
