#include "object-model/ZFXHandle.h"
#include "object-model/ZFXInterfaces.h"
#include "object-model/ZFXMetaClass.h"
#include "support/DocumentTest.h"

namespace {

/// Counts what is asked of it, and offers ZFXIAlias only.
class Counting final : public ZFXIAlias {
public:
    HRESULT QueryInterface(const IID& iid, void** face) override {
        ++queries;
        *face = nullptr;
        if (iid != IID_ZFXIAlias)
            return E_NOINTERFACE;
        AddRef();
        *face = this;
        return S_OK;
    }
    using ZFXIAlias::QueryInterface;
    ULONG AddRef() override { return static_cast<ULONG>(++added); }
    ULONG Release() override { return static_cast<ULONG>(++released); }
    void SetAlias(const ZFXUnicodeString&) override {}
    ZFXUnicodeString GetAlias() override { return "counting"; }

    int queries = 0;
    int added = 0;
    int released = 0;
};

using Counts = std::array<int, 3>; // queries, AddRef, Release

TEST(Handle, AsksAndCountsNoMoreThanNeeded) {
    struct Row {
        const char* what;
        void (*act)(Counting&);
        Counts expected;
    };
    // clang-format off
    const Row rows[] = {
        {"same type", [](Counting& o) { ZFXIAlias_var a(static_cast<ZFXIAlias*>(&o)); }, {0, 1, 1}},
        {"root", [](Counting& o) { ZFXBaseUnknown_var a(&o); }, {0, 1, 1}},
        {"cast that hits", [](Counting& o) { ZFXIAlias_var a(static_cast<ZFXBaseUnknown*>(&o)); }, {1, 1, 1}},
        {"cast that misses", [](Counting& o) { ZFXISpecObject_var a(&o); }, {1, 0, 0}},
        {"null", [](Counting&) { ZFXIAlias_var a(static_cast<ZFXBaseUnknown*>(nullptr)); }, {0, 0, 0}},
        {"cast of an empty handle", [](Counting&) { ZFXIAlias_var a{ZFXBaseUnknown_var()}; }, {0, 0, 0}},
        {"handle to root", [](Counting& o) { ZFXIAlias_var a(&o); ZFXBaseUnknown_var b(a); }, {0, 2, 2}},
        {"handle cast, hits", [](Counting& o) { ZFXBaseUnknown_var a(&o); ZFXIAlias_var b(a); }, {1, 2, 2}},
        {"handle cast, misses", [](Counting& o) { ZFXIAlias_var a(&o); ZFXISpecObject_var b(a); }, {1, 1, 1}},
        {"taken over", [](Counting& o) { auto a = ZFXIAlias_var::Attach(&o); }, {0, 0, 1}},
        {"copy", [](Counting& o) { ZFXIAlias_var a(&o), b(a); }, {0, 2, 2}},
        {"move", [](Counting& o) { ZFXIAlias_var a(&o), b(std::move(a)); }, {0, 1, 1}},
        {"swap", [](Counting& o) { ZFXIAlias_var a(&o), b; a.Swap(b); }, {0, 1, 1}},
        {"assignment over itself", [](Counting& o) { ZFXIAlias_var a(&o); a = *&a; }, {0, 2, 2}},
        {"assignment over a full one", [](Counting& o) { ZFXIAlias_var a(&o), b(&o); b = a; }, {0, 3, 3}},
        {"move over a full one", [](Counting& o) { ZFXIAlias_var a(&o), b(&o); b = std::move(a); }, {0, 2, 2}},
        {"assignment of nothing", [](Counting& o) { ZFXIAlias_var a(&o); a = nullptr; }, {0, 1, 1}},
        {"assignment by a cast", [](Counting& o) { ZFXBaseUnknown_var a(&o); ZFXIAlias_var b; b = a; }, {1, 2, 2}},
        {"comparison", [](Counting& o) { ZFXIAlias_var a(&o); EXPECT_TRUE(a == &o && a != nullptr && a); }, {0, 1, 1}},
        {"comparison of handles", [](Counting& o) { ZFXIAlias_var a(&o); ZFXBaseUnknown_var b(&o); EXPECT_TRUE(a == b); },
         {0, 2, 2}},
        {"in a list", [](Counting& o) { ZFXListVal<ZFXIAlias_var> a; a.Append(&o); a.Append(a[1]); a.RemovePosition(1); },
         {0, 2, 2}},
    };
    // clang-format on
    for (const Row& row : rows) {
        Counting object;
        row.act(object);
        EXPECT_EQ((Counts{object.queries, object.added, object.released}), row.expected) << row.what;
    }
}

class IdentityTest : public DocumentTest {};

TEST_F(IdentityTest, EveryFaceOfAnObjectIsTheObject) {
    MemoryFeature step = document.Case("Static").Step("QVRGeneralStaticStepLT", "Step-1");
    MemoryFeature other = document.Case("Other").Step("QVRGeneralStaticStepLT", "Step-1");
    const ZFXISpecObject_var feature(step);
    const ZFXISamAnalysisScan_var scan(feature);
    const ZFXBaseUnknown_var root(scan);
    ASSERT_TRUE(feature && scan && root);
    EXPECT_TRUE(feature == scan && scan == root && root == step.Object() && root->IsEqual(feature));
    EXPECT_TRUE(feature != ZFXISpecObject_var(other) && feature != ZFXISpecObject_var());
    void* byName = nullptr;
    EXPECT_EQ(root->QueryInterface("ZFXISamAnalysisScan", &byName), S_OK);
    EXPECT_EQ(byName, scan.Get());
    scan->Release();
    EXPECT_EQ(root->QueryInterface("ZFXINowhere", &byName), E_NOINTERFACE);
    EXPECT_EQ(byName, nullptr);
}

TEST(Root, OffersItselfAndNoAutomation) {
    ZFXBaseUnknown object;
    void* face = &object;
    EXPECT_EQ(object.QueryInterface(IID_ZFXIAlias, &face), E_NOINTERFACE);
    EXPECT_EQ(face, nullptr);
    EXPECT_EQ(object.QueryInterface(IID_ZFXBaseUnknown, &face), S_OK);
    EXPECT_EQ(face, &object);
    EXPECT_EQ(object.AddRef(), 3U);
    EXPECT_EQ(object.Release(), 2U);
    EXPECT_EQ(object.QueryInterface(IID_ZFXBaseUnknown, nullptr), E_POINTER);
    EXPECT_EQ(object.QueryInterface("ZFXIAlias", nullptr), E_POINTER);
    EXPECT_EQ(object.GetTypeInfoCount(nullptr), E_POINTER);
    EXPECT_EQ(object.GetTypeInfo(0, 0, nullptr), E_NOTIMPL);
    EXPECT_EQ(object.GetIDsOfNames(IID_ZFXIAlias, nullptr, 0, 0, nullptr), E_NOTIMPL);
    EXPECT_EQ(object.Invoke(0, IID_ZFXIAlias, 0, 0, nullptr, nullptr, nullptr, nullptr), E_NOTIMPL);
}

TEST(MetaClass, IsOneForAName) {
    ZFXMetaClass* unknown = fct_FindMetaObject("A type that nobody declared yet");
    ASSERT_NE(unknown, nullptr);
    EXPECT_EQ(fct_FindMetaObject("A type that nobody declared yet"), unknown);
    const ZFXMetaClass* declared =
        fct_RetrieveMetaObject("A type that nobody declared yet", ENUMTypeOfClass::DataExtension,
                               ZFXBaseUnknown::MetaObject(), nullptr, "Tests", 0);
    EXPECT_EQ(declared, unknown); // asked for by name first, declared later, and once
    fct_RetrieveMetaObject(unknown->IsA(), ENUMTypeOfClass::Interface, nullptr, nullptr, "Tests", 0);
    EXPECT_TRUE(declared->IsAKindOf("ZFXBaseUnknown") && declared->GetTypeOfClass() == ENUMTypeOfClass::DataExtension);
    ZFXMetaClass* extension = fct_RetrieveMetaObject("An extension", ENUMTypeOfClass::DataExtension,
                                                     ZFXBaseUnknown::MetaObject(), "A late type", "Tests", 0);
    EXPECT_TRUE(extension->IsExtensionOf(fct_FindMetaObject("A late type")));
    EXPECT_FALSE(extension->IsExtensionOf(unknown));
    EXPECT_TRUE(extension->IsAKindOf("ZFXBaseUnknown") && !extension->IsAKindOf("ZFXIAlias"));
    EXPECT_FALSE(extension->GetClassId() == unknown->GetClassId());
    EXPECT_EQ(ZFXIAlias::MetaObject()->GetClassId(), IID_ZFXIAlias);
    EXPECT_EQ(ZFXIAlias::MetaObject()->GetTypeOfClass(), ENUMTypeOfClass::Interface);
    EXPECT_EQ(ZFXBaseUnknown::MetaObject()->GetTypeOfClass(), ENUMTypeOfClass::Implementation);
    EXPECT_EQ(fct_FindMetaObject(nullptr), nullptr);
}

} // namespace
