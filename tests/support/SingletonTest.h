#pragma once

#include "QVRGenI18NUtils.h"
#include "support/DocumentTest.h"

/// A test of names that the singleton caches. The caches are empty before and after each test.
struct SingletonTest : DocumentTest {
    using Operation = HRESULT (QVRGenI18NUtils::*)(const ZFXISpecObject_var&, ZFXUnicodeString&);

    void SetUp() override { utils->ResetAllLists(); }
    void TearDown() override {
        utils->ResetAllLists();
        DocumentTest::TearDown();
    }
    /// Returns the name that an operation returns for a feature. After a failure: "error|name".
    std::string NameBy(Operation operation, MemoryFeature feature) {
        ZFXUnicodeString name("before");
        const HRESULT code = (utils->*operation)(feature, name);
        return code == S_OK ? Narrow(name) : ResultText(code) + "|" + Narrow(name);
    }

    static constexpr Operation kGeneric = &QVRGenI18NUtils::GetGenericEnglishFeatureName;
    static constexpr Operation kDisplay = &QVRGenI18NUtils::GetFeatureName;
    static constexpr Operation kMaterial = &QVRGenI18NUtils::GetMaterialName;
    static constexpr Operation kGenericMaterial = &QVRGenI18NUtils::GetGenericEnglishMaterialName;

    QVRGenI18NUtils* utils = QVRGenI18NUtils::Instance();
    MemoryFeature set = document.Model().Set("S");
};
