#pragma once

#include "QVRGenInstanceName.h"
#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

/// A test of names in the scope of a feature.
struct ScopeTest : DocumentTest {
    /// Returns the name that GetUniqueName proposes.
    static std::string Propose(MemoryFeature feature, const char* baseName, MemoryFeature analysisCase) {
        ZFXUnicodeString name(baseName);
        ZFXISpecObject_var handle(feature);
        ZFXISamAnalysisCase_var scope(analysisCase);
        QVRNameUtil::GetUniqueName(name, handle, scope);
        return Narrow(name);
    }
    /// Returns the result of IsNameUnique.
    static std::string Check(MemoryFeature feature, const ZFXUnicodeString& name) {
        return Call(feature, name, QVRNameUtil::IsNameUnique);
    }
    /// Calls GetGrpNameofMasterAndSlave with the names "m" and "s". Returns its code, the master name if it changed,
    /// and the slave name.
    static std::string GroupNames(MemoryFeature design) {
        QVRISamAnalysisConnectionDesign_var handle(design);
        ZFXUnicodeString slave("s");
        const auto call = [&](auto& name) { return QVRNameUtil::GetGrpNameofMasterAndSlave(handle, name, slave); };
        const std::string master = Call("m", call);
        return master + "|" + Narrow(slave);
    }
    /// Calls GetUniqueLegalInstanceName with the names "i" and "p". Returns its code, the instance name if it changed,
    /// and the part name.
    static std::string InstanceNames(MemoryFeature meshPart) {
        const ZFXIMSHMeshPart_var handle(meshPart);
        ZFXUnicodeString part("p");
        const auto call = [&](auto& name) {
            return QVRGenInstanceName::GetUniqueLegalInstanceName(handle, name, part);
        };
        const std::string instance = Call("i", call);
        return instance + "|" + Narrow(part);
    }

    static constexpr const char* kDuplicate = "DuplicateNameERR_02 -100";
};
