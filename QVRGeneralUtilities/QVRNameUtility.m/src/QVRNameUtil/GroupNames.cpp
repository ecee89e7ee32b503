#include "QVRNameUtil.h"

#include "QVRGenZFXUnicodeStringUtils.h"
#include "analysis/QVRISamGroupExt.h"
#include "analysis/ZFXIAlias.h"
#include "analysis/ZFXISamAnalysisConnector.h"
#include "analysis/ZFXISamAnalysisSupport.h"

#include <tuple>

HRESULT QVRNameUtil::GetSupportGroupName(ZFXISpecObject_var& support, ZFXUnicodeString& groupName) noexcept {
    groupName = "";
    const ZFXISamAnalysisSupport_var connected(support);
    if (connected == nullptr)
        return S_OK;
    ZFXListValZFXBaseUnknown_var connectors;
    std::ignore = connected->ListConnectors(connectors); // the list counts, not the code
    return GetSupportGroupName(connectors, groupName);
}

HRESULT QVRNameUtil::GetSupportGroupName(
    ZFXListValZFXBaseUnknown_var connectors, // NOLINT(performance-unnecessary-value-param): the signature is fixed
    ZFXUnicodeString& groupName) noexcept {
    groupName = "";
    const ZFXISamAnalysisConnector_var connector(connectors.Size() == 1 ? connectors[1] : ZFXBaseUnknown_var());
    if (connector == nullptr)
        return S_OK;
    ZFXBaseUnknown* raw = nullptr;
    std::ignore = connector->GetGroup(raw); // the group counts, not the code
    const ZFXBaseUnknown_var group = ZFXBaseUnknown_var::Attach(raw);
    if (QVRISamGroupExt_var(group) == nullptr)
        return E_FAIL;
    const ZFXIAlias_var alias(group);
    if (alias == nullptr)
        return S_OK;
    const ZFXUnicodeString name = QVRGenZFXUnicodeStringUtils::ReplacePeriodWithDash(alias->GetAlias());
    ZFXUnicodeString offending;
    if (!Failed(DoesNameContainDoubleByteChar(name, offending)))
        groupName = name;
    return S_OK;
}

HRESULT QVRNameUtil::GetGrpNameofMasterAndSlave(QVRISamAnalysisConnectionDesign_var& design,
                                                ZFXUnicodeString& masterName, ZFXUnicodeString& slaveName) noexcept {
    if (design == nullptr)
        return E_FAIL;
    ZFXListValZFXBaseUnknown_var master;
    ZFXListValZFXBaseUnknown_var slave;
    std::ignore = design->GetMasterAndSlaveConnectors(master, slave); // the lists count, not the code
    if (master.Size() != 1 || slave.Size() != 1)
        return S_OK;
    // A side without a usable group gets an empty name. That is no failure of the design.
    std::ignore = GetSupportGroupName(master, masterName);
    std::ignore = GetSupportGroupName(slave, slaveName);
    return S_OK;
}
