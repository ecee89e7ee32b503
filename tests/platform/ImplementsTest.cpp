#include "support/Results.h"

#include "analysis/AnalysisInterfaces.h"
#include "analysis/WorkbenchUtilities.h"
#include "object-model/ZFXImplements.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace {

/// A feature with three interfaces.
class Feature : public ZFXImplements<ZFXObject, ZFXISpecObject, ZFXIAlias, ZFXISamAnalysisEntity> {
public:
    explicit Feature(const char* lateType) : ZFXImplements(fct_FindMetaObject(lateType)) {}
    ZFXUnicodeString GetLateType() override { return LateType(); }
    ZFXBaseUnknown* GetFather() override { return ZFXNewReference(father); }
    ZFXListValZFXISpecAttribute_var* ListPointingAttributes(const char*, const ZFXUnicodeString&,
                                                            const ZFXUnicodeString&) override {
        return nullptr;
    }
    void SetAlias(const ZFXUnicodeString&) override {}
    ZFXUnicodeString GetAlias() override { return "own"; }
    HRESULT GetParentSets(ZFXListValZFXBaseUnknown_var*&) override { return E_NOTIMPL; }
    Feature* father = nullptr;
};

/// A step adds an interface to those of a feature.
class Step final : public ZFXImplements<Feature, QVRIStep> {
public:
    using ZFXImplements::ZFXImplements;
};

TEST(Implements, AllInterfacesBelongToOneObjectWithOneCount) {
    const long before = ZFXBaseUnknown::LiveAllocations();
    {
        const auto step = ZFXHandle<Step>::Attach(new Step("ImplementsTestLT"));
        const ZFXBaseUnknown_var root(step);
        const ZFXISpecObject_var feature(step);
        const ZFXISamAnalysisEntity_var entity(feature);
        EXPECT_EQ(Narrow(ZFXIAlias_var(QVRIStep_var(entity))->GetAlias()), "own");
        EXPECT_EQ(ZFXISamAnalysisScan_var(step), nullptr);
        void* named = nullptr;
        EXPECT_EQ(step->QueryInterface("ZFXISpecObject", &named), S_OK);
        EXPECT_EQ(ZFXISpecObject_var::Attach(static_cast<ZFXISpecObject*>(named)).Get(), feature.Get());
        EXPECT_EQ(ZFXBaseUnknown_var(entity).Get()->GetImpl(), root.Get());
        EXPECT_TRUE(entity == step.Get() && step.Get() == feature);
        EXPECT_EQ(root->AddRef(), 5U) << "references: step, root, feature, entity, this one";
        EXPECT_EQ(entity->Release(), 4U);
        EXPECT_EQ(step->QueryInterface(IID_ZFXIAlias, nullptr), E_POINTER);
    }
    EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), before);
}

TEST(Implements, NewReferenceBelongsToTheCaller) {
    Feature father("ImplementsTestLT");
    Feature child("ImplementsTestLT");
    EXPECT_EQ(ZFXNewReference(child.father), nullptr);
    child.father = &father;
    const auto found = ZFXBaseUnknown_var::Attach(ZFXISpecObject_var(&child)->GetFather());
    EXPECT_TRUE(found == &father);
    EXPECT_EQ(found->AddRef(), 3U);
    EXPECT_EQ(found->Release(), 2U);
}

TEST(Implements, ExtensionOfTheLateTypeTakesPrecedence) {
    ZFXMetaClass* extension =
        fct_RetrieveMetaObject("ImplementsTestExtension", ENUMTypeOfClass::DataExtension, nullptr, "ExtendedLT", "", 0);
    static Feature replacement("ImplementsTestLT");
    const ZFXFillDictionary entry(
        extension, ZFXIAlias::MetaObject(),
        [](ZFXBaseUnknown*, void*) -> ZFXBaseUnknown* { return ZFXIAlias_var(&replacement).Detach(); }, nullptr, 1);
    Feature extended("ExtendedLT");
    void* found = nullptr;
    EXPECT_EQ(extended.QueryInterface(IID_ZFXIAlias, &found), S_OK);
    EXPECT_TRUE(ZFXIAlias_var::Attach(static_cast<ZFXIAlias*>(found)) == &replacement);
    EXPECT_TRUE(ZFXISpecObject_var(&extended) == &extended);
}

#if GTEST_HAS_DEATH_TEST && !defined(NDEBUG)

TEST(AssertionDeathTest, NamesTheOperation) {
    const std::pair<std::function<void()>, const char*> rows[] = {
        {[] { static_cast<void>(ZFXIAlias_var()->GetAlias()); }, "ZFXHandle::operator->: the handle is empty"},
        {[] {
             auto* feature = new Feature("ImplementsTestLT");
             const ZFXBaseUnknown_var kept(feature);
             delete feature;
         },
         "ZFXBaseUnknown: an object is destroyed to which others have references"},
        {[] { fct_FindMetaObject("ImplementsTestLT")->AddAdaptorFactory(IID_ZFXIAlias, nullptr); },
         "ZFXMetaClass::AddAdaptorFactory: the factory is null"},
        {[] {
             ZFXISpecObject_var step = ZFXISpecObject_var::Attach(new Feature("ImplementsTestLT"));
             static_cast<void>(QVRAnalysisEntityUtils::GetParentStep(step, step));
         },
         "AnalysisServices::GetParentStep: the handle is not empty"},
    };
    for (const auto& [call, message] : rows)
        EXPECT_DEATH(call(), message);
}

#endif

} // namespace
