#include "QVREFeatureAlias.h"

namespace {

constexpr const char* kClassName = "QVREFeatureAlias";

constexpr const char* kExtendedLateTypes[] = {
    "QVRDisplayGrpLT",
    "QVRExplicitDynamicStepLT",
    "QVRGeneralStaticStepLT",
    "QVRHeatTransferStepLT",
    "QVRRiksStepLT",
    "QVRStaticLPStepLT",
    "QVRFrequencyStepLT",
    "QVRJobLT",
    "QVRShellSectionEnhLT",
    "QVRLayupLT",
    "QVRMatOrientLT",
    "QVRRigidBodyConstraintLT",
    "QVRRigidCouplingLT",
    "QVRSmoothCouplingLT",
    "QVRARSurfLT",
    "QVRARSurfMeshPartLT",
    "QVRTiedContactLT",
    "QVRSurfaceToSurfaceContactLT",
    "QVRInteractionLT",
    "QVRInteractionPropertyLT",
    "QVRThermalConnBehaviorLT",
    "QVRSpringLT",
    "QVRSpringMeshPartLT",
    "QVRDamperLT",
    "QVRDamperMeshPartLT",
    "QVRTabularAmplitudeLT",
    "QVRSmoothStepAmplitudeLT",
    "QVRSubmodelPropertyLT",
    "QVRLocalElemAsgnLT",
};

} // namespace

ZFXMetaClass* QVREFeatureAlias::meta_object = nullptr;

QVREFeatureAlias::QVREFeatureAlias() = default;
QVREFeatureAlias::~QVREFeatureAlias() = default;

void QVREFeatureAlias::SetAlias(const ZFXUnicodeString& alias) noexcept { QVRBaseFeatureAlias::SetAlias(alias); }
ZFXUnicodeString QVREFeatureAlias::GetAlias() noexcept { return QVRBaseFeatureAlias::GetAlias(); }

ZFXMetaClass* QVREFeatureAlias::MetaObject() noexcept {
    if (meta_object != nullptr)
        return meta_object;
    meta_object = fct_RetrieveMetaObject(kClassName, ENUMTypeOfClass::DataExtension, ZFXnull::MetaObject(),
                                         "QVRARSurfLT", "QVRGeneralUtilities", 32);
    for (const char* lateType : kExtendedLateTypes)
        meta_object->SetExtensionOf(fct_FindMetaObject(lateType));
    return meta_object;
}

ZFXMetaClass* QVREFeatureAlias::GetMetaObject() const noexcept { return MetaObject(); }
const GUID& QVREFeatureAlias::ClassId() noexcept { return MetaObject()->GetClassId(); }
const char* QVREFeatureAlias::ClassName() noexcept { return MetaObject()->IsA(); }
const char* QVREFeatureAlias::IsA() const noexcept { return MetaObject()->IsA(); }
int QVREFeatureAlias::IsAKindOf(const char* name) const noexcept { return MetaObject()->IsAKindOf(name); }
ZFXBaseUnknown* QVREFeatureAlias::CreateItself() noexcept { return new QVREFeatureAlias; }
