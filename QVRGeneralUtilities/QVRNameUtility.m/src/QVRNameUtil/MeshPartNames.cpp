#include "QVRNameUtil.h"

#include "analysis/WorkbenchUtilities.h"
#include "analysis/ZFXILinkableObject.h"
#include "errors/ZFXError.h"
#include "internal/Navigation.h"
#include "internal/Refusal.h"

HRESULT QVRNameUtil::GetUniqueNameForMeshPart(ZFXISpecObject_var& meshPart, ZFXUnicodeString& name) noexcept {
    const ZFXILinkableObject_var linkable(meshPart);
    const ZFXDocument* document = linkable == nullptr ? nullptr : linkable->GetOwningDocument();
    if (document == nullptr)
        return InputErrorReturn(MessageId::MeshPartUniqueNameERR);
    ZFXIMSHMeshManager_var manager;
    if (Failed(QVRAnalysisDocUtils::GetMeshManager(manager, document)))
        return InputErrorReturn(MessageId::MeshPartUniqueNameERR);
    const ZFXISamAnalysisSet_var set(manager);
    ZFXListValZFXBaseUnknown_var scope;
    if (set == nullptr || Failed(Navigation::AppendMembers(set, scope)))
        return InputErrorReturn(MessageId::MeshPartUniqueNameERR);
    GetNextUniqueName(name, scope);
    return ZFXError::GetReturn(ZFXErrorTypeSuccess, nullptr, nullptr, __FILE__, __LINE__);
}
