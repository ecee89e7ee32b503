#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

#include <tuple>

namespace {

class BaseNamesTest : public DocumentTest {};

TEST_F(BaseNamesTest, FollowTheExactLateType) {
    // clang-format off
    const std::tuple<const char*, const char*> rows[] = {
        {"QVRPressure", "Pressure-"}, {"QVRConcentratedForce", "Point Load-"}, {"QVRConcHeatFlux", "Point Heat Flux-"},
        {"QVRNewFieldOutputLT", "Field Output Request-"}, {"QVRMassScalingLT", "Mass Scaling-"},
        {"QVRContactConnectionEnhancementStdLT", "Contact Pair-"},
        {"QVRContactConnectionEnhancementExplicitLT", "Contact Pair-"}, {"QVRGeneralContactLT", "General Contact-"},
        {"QVRSubmodelBCLT", "Submodel BC-"}, {"QVRInitialTemperatureLT", "Initial Temperature-"},
        // No row: what the caller passed stays.
        {"QVRPressureLT", "before"}, {"QVRPRESSURE", "before"}, {"QVRFieldOutputLT", "before"}, {"", "before"},
    };
    // clang-format on
    for (const auto& [lateType, expectedBaseName] : rows) {
        ZFXISpecObject_var feature(document.Model().Feature(lateType, "x"));
        ZFXUnicodeString baseName("before");
        EXPECT_EQ(QVRNameUtil::CreateBaseName(feature, baseName), S_OK);
        EXPECT_EQ(Text(baseName), expectedBaseName) << lateType;
    }
}

} // namespace
