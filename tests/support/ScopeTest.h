#pragma once

#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

/// A test of names in the scope of a feature.
class ScopeTest : public DocumentTest {
protected:
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

    static constexpr const char* kDuplicate = "DuplicateNameERR_02 -100";
};
