#include "QVRNameUtil.h"

namespace {

struct Row {
    const char* lateType;
    const char* baseName;
};

constexpr Row kBaseNames[] = {
    {"QVRPressure", "Pressure-"},
    {"QVRGravity", "Gravity-"},
    {"QVRRotationalBodyForce", "Rotational Body Force-"},
    {"QVRConcentratedForce", "Point Load-"},
    {"QVRConcHeatFlux", "Point Heat Flux-"},
    {"QVRSurfaceHeatFlux", "Surface Heat Flux-"},
    {"QVRBodyHeatFlux", "Body Heat Flux-"},
    {"QVRDisplacementBC", "Displacement-"},
    {"QVRClamp", "Clamp-"},
    {"QVRVelocityBCLT", "Velocity-"},
    {"QVRAccelerationBCLT", "Acceleration-"},
    {"QVRSubmodelBCLT", "Submodel BC-"},
    {"QVRTemperatureHistoryLT", "Temperature History-"},
    {"QVRInitialVelocityLT", "Initial Velocity-"},
    {"QVRInitialTemperatureLT", "Initial Temperature-"},
    {"QVRMassScalingLT", "Mass Scaling-"},
    {"QVRNewFieldOutputLT", "Field Output Request-"},
    {"QVRHistoryOutputLT", "History Output Request-"},
    {"QVRDatOutputLT", "Data Output Request-"},
    {"QVRContactConnectionEnhancementStdLT", "Contact Pair-"},
    {"QVRContactConnectionEnhancementExplicitLT", "Contact Pair-"}, // one series with the row above
    {"QVRGeneralContactLT", "General Contact-"},
};

} // namespace

HRESULT QVRNameUtil::CreateBaseName(ZFXISpecObject_var& feature, ZFXUnicodeString& baseName) noexcept {
    if (feature == nullptr)
        return E_FAIL;
    const ZFXUnicodeString lateType = feature->GetLateType();
    for (const Row& row : kBaseNames) {
        if (lateType != row.lateType)
            continue;
        baseName = row.baseName;
        break;
    }
    return S_OK;
}
