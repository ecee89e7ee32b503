#include "internal/GenericEnglishNames.h"

#include "analysis/ZFXISamAnalysisSet.h"
#include "internal/InputErrors.h"
#include "internal/Numbering.h"

HRESULT GenericEnglishNames::Of(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) {
    if (feature == nullptr)
        return InputErrorReturn(QVR_HERE, MessageId::GetGenericEnglishNameERR_01);
    const Members& members = MembersAround(feature);
    const auto position = members.positions.find(ZFXIdentityOf(feature));
    if (position == members.positions.end())
        return InputErrorReturn(QVR_HERE, MessageId::GetGenericEnglishNameERR_01);
    name = Numbering::NumberedName(feature->GetLateType() + "-", position->second);
    return S_OK;
}

const GenericEnglishNames::Members& GenericEnglishNames::MembersAround(const ZFXISpecObject_var& feature) {
    const ZFXBaseUnknown_var father = ZFXBaseUnknown_var::Attach(feature->GetFather());
    const auto [entry, isNew] = m_membersOf.try_emplace(ZFXIdentityOf(father));
    Members& members = entry->second;
    if (!isNew)
        return members;
    members.father = father;
    const ZFXISamAnalysisSet_var set(father);
    if (set == nullptr || Failed(set->ListMembers(members.list, CLSID_ZFXBaseUnknown, ZFXISamAnalysisSet::kMemberFlag)))
        return members;
    for (int i = 1; i <= members.list.Size(); ++i)
        members.positions.try_emplace(ZFXIdentityOf(members.list[i]), i);
    return members;
}
