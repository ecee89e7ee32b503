#include "support/Results.h"

#include "analysis/AnalysisInterfaces.h"
#include "analysis/WorkbenchUtilities.h"
#include "object-model/ZFXImplements.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace {

struct Object : ZFXImplements<ZFXObject, ZFXIAlias, ZFXILinkableObject, ZFXIMSHMeshManager> {
    Object() : ZFXImplements(nullptr) {}
    void SetAlias(const ZFXUnicodeString&) override {}
    ZFXUnicodeString GetAlias() override { return LateType(); }
    ZFXDocument* GetOwningDocument() override { return nullptr; }
};

/// A step adds an interface to those of an object.
struct Step final : ZFXImplements<Object, QVRIStep> {};

// The binding check tests the casts to interfaces of an extension.
TEST(Implements, AllInterfacesBelongToOneObjectWithOneCount) {
    const long before = ZFXBaseUnknown::LiveAllocations();
    {
        const auto step = ZFXHandle<Step>::Attach(new Step);
        const ZFXBaseUnknown_var root(step);
        const ZFXILinkableObject_var linkable(step);
        const ZFXIMSHMeshManager_var manager(linkable);
        EXPECT_EQ(Narrow(ZFXIAlias_var(QVRIStep_var(manager))->GetAlias()), "ZFXnull");
        EXPECT_EQ(ZFXISamAnalysisScan_var(step), nullptr);
        void* named = nullptr;
        EXPECT_EQ(step->QueryInterface("ZFXILinkableObject", &named), S_OK);
        EXPECT_EQ(ZFXILinkableObject_var::Attach(static_cast<ZFXILinkableObject*>(named)).Get(), linkable.Get());
        EXPECT_EQ(ZFXBaseUnknown_var(manager).Get()->GetImpl(), root.Get());
        EXPECT_TRUE(manager == step.Get() && step.Get() == linkable);
        EXPECT_EQ(ZFXBaseUnknown_var::Attach(ZFXNewReference(step.Get()))->AddRef(), 6U)
            << "references: step, root, linkable, manager, the new one, this one";
        EXPECT_EQ(manager->Release(), 4U);
        EXPECT_EQ(step->QueryInterface(IID_ZFXIAlias, nullptr), E_POINTER);
    }
    EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), before);
}

#if GTEST_HAS_DEATH_TEST && !defined(NDEBUG)

TEST(AssertionDeathTest, NamesTheOperation) {
    const std::pair<std::function<void()>, const char*> rows[] = {
        {[] { static_cast<void>(ZFXIAlias_var()->GetAlias()); }, "ZFXHandle::operator->: the handle is empty"},
        {[] {
             auto* object = new Object;
             const ZFXBaseUnknown_var kept(object);
             delete object;
         },
         "ZFXBaseUnknown: an object is destroyed to which others have references"},
        {[] { fct_FindMetaObject("ImplementsTestLT")->AddAdaptorFactory(IID_ZFXIAlias, nullptr); },
         "ZFXMetaClass::AddAdaptorFactory: the factory is null"},
        {[] {
             ZFXIMSHMeshManager_var manager = ZFXIMSHMeshManager_var::Attach(new Object);
             static_cast<void>(QVRAnalysisDocUtils::GetMeshManager(manager, nullptr));
         },
         "AnalysisServices::GetMeshManager: the handle is not empty"},
    };
    for (const auto& [call, message] : rows)
        EXPECT_DEATH(call(), message);
}

#endif

} // namespace
