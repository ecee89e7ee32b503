#include "object-model/ZFXHandle.h"
#include "object-model/ZFXInterfaces.h"
#include "support/DocumentTest.h"

#include <array>
#include <tuple>

namespace {

using Counts = std::array<int, 3>; // QueryInterface, AddRef, Release

/// Counts the calls of its root operations. Offers ZFXIAlias only.
class Counting final : public ZFXIAlias {
public:
    HRESULT QueryInterface(const IID& iid, void** result) override {
        ++calls[0];
        *result = nullptr;
        if (iid != IID_ZFXIAlias)
            return E_NOINTERFACE;
        AddRef();
        *result = this;
        return S_OK;
    }
    using ZFXIAlias::QueryInterface;
    ULONG AddRef() override { return static_cast<ULONG>(++calls[1]); }
    ULONG Release() override { return static_cast<ULONG>(++calls[2]); }
    void SetAlias(const ZFXUnicodeString&) override {}
    ZFXUnicodeString GetAlias() override { return "counting"; }

    Counts calls{};
};

TEST(Handle, CallsNoMoreRootOperationsThanNeeded) {
    // clang-format off
    const std::tuple<const char*, void (*)(Counting&), Counts> rows[] = {
        {"same type", [](Counting& o) { ZFXIAlias_var a(static_cast<ZFXIAlias*>(&o)); }, {0, 1, 1}},
        {"root", [](Counting& o) { ZFXBaseUnknown_var a(&o); }, {0, 1, 1}},
        {"cast that hits", [](Counting& o) { ZFXIAlias_var a(static_cast<ZFXBaseUnknown*>(&o)); }, {1, 1, 1}},
        {"cast that misses", [](Counting& o) { ZFXISpecObject_var a(&o); }, {1, 0, 0}},
        {"null", [](Counting&) { ZFXIAlias_var a(static_cast<ZFXBaseUnknown*>(nullptr)); }, {0, 0, 0}},
        {"cast of an empty handle", [](Counting&) { ZFXIAlias_var a{ZFXBaseUnknown_var()}; }, {0, 0, 0}},
        {"handle to root", [](Counting& o) { ZFXIAlias_var a(&o); ZFXBaseUnknown_var b(a); }, {0, 2, 2}},
        {"handle cast, hits", [](Counting& o) { ZFXBaseUnknown_var a(&o); ZFXIAlias_var b(a); }, {1, 2, 2}},
        {"handle cast, misses", [](Counting& o) { ZFXIAlias_var a(&o); ZFXISpecObject_var b(a); }, {1, 1, 1}},
        {"attached", [](Counting& o) { auto a = ZFXIAlias_var::Attach(&o); }, {0, 0, 1}},
        {"attached and detached", [](Counting& o) { EXPECT_EQ(ZFXIAlias_var::Attach(&o).Detach(), &o); }, {0, 0, 0}},
        {"copy", [](Counting& o) { ZFXIAlias_var a(&o), b(a); }, {0, 2, 2}},
        {"move", [](Counting& o) { ZFXIAlias_var a(&o), b(std::move(a)); }, {0, 1, 1}},
        {"swap", [](Counting& o) { ZFXIAlias_var a(&o), b; a.Swap(b); }, {0, 1, 1}},
        {"assignment to itself", [](Counting& o) { ZFXIAlias_var a(&o); a = *&a; }, {0, 2, 2}},
        {"assignment to a full handle", [](Counting& o) { ZFXIAlias_var a(&o), b(&o); b = a; }, {0, 3, 3}},
        {"move to a full handle", [](Counting& o) { ZFXIAlias_var a(&o), b(&o); b = std::move(a); }, {0, 2, 2}},
        {"assignment of null", [](Counting& o) { ZFXIAlias_var a(&o); a = nullptr; }, {0, 1, 1}},
        {"assignment by a cast", [](Counting& o) { ZFXBaseUnknown_var a(&o); ZFXIAlias_var b; b = a; }, {1, 2, 2}},
        {"comparison", [](Counting& o) { ZFXIAlias_var a(&o); EXPECT_TRUE(a == &o); EXPECT_TRUE(a != nullptr); }, {0, 1, 1}},
        {"comparison of handles", [](Counting& o) { EXPECT_TRUE(ZFXIAlias_var(&o) == ZFXBaseUnknown_var(&o)); }, {0, 2, 2}},
        {"in a list", [](Counting& o) { ZFXListVal<ZFXIAlias_var> a; a.Append(&o); a.Append(a[1]); }, {0, 2, 2}},
    };
    // clang-format on
    for (const auto& [what, act, expected] : rows) {
        Counting object;
        act(object);
        EXPECT_EQ(object.calls, expected) << what;
    }
}

class IdentityTest : public DocumentTest {};

TEST_F(IdentityTest, AllInterfacePointersOfAnObjectAreEqual) {
    const ZFXISpecObject_var feature(document.Case("Static").Step("QVRGeneralStaticStepLT", "Step-1"));
    const ZFXISamAnalysisScan_var scan(feature);
    const ZFXBaseUnknown_var root(scan);
    ASSERT_NE(feature, nullptr);
    EXPECT_TRUE(feature == scan);
    EXPECT_NE(root->IsEqual(feature), 0);
    EXPECT_EQ(root->IsEqual(nullptr), 0);
    EXPECT_EQ(root->IsNull(), 0);
    EXPECT_TRUE(feature != ZFXISpecObject_var(document.Model()));
    EXPECT_EQ(ZFXIdentityOf(feature), ZFXIdentityOf(scan));
    EXPECT_EQ(ZFXIdentityOf(nullptr), nullptr);
}

TEST_F(IdentityTest, AnInterfaceIsFoundByItsName) {
    const ZFXISamAnalysisScan_var scan(document.Case("Static"));
    void* byName = nullptr;
    EXPECT_EQ(scan->QueryInterface("ZFXISamAnalysisScan", &byName), S_OK);
    EXPECT_EQ(byName, scan.Get());
    scan->Release();
    for (const char* unknown : {"ZFXINowhere", "", static_cast<const char*>(nullptr)}) {
        byName = scan.Get();
        EXPECT_EQ(scan->QueryInterface(unknown, &byName), E_NOINTERFACE);
        EXPECT_EQ(byName, nullptr);
    }
}

TEST(Root, OffersItselfOnly) {
    ZFXBaseUnknown object;
    void* result = &object;
    EXPECT_EQ(object.QueryInterface(IID_ZFXIAlias, &result), E_NOINTERFACE);
    EXPECT_EQ(result, nullptr);
    EXPECT_EQ(object.QueryInterface(IID_ZFXBaseUnknown, &result), S_OK);
    EXPECT_EQ(result, &object);
    EXPECT_EQ(object.AddRef(), 3U);
    EXPECT_EQ(object.Release(), 2U);
    EXPECT_EQ(object.Release(), 1U);
    EXPECT_EQ(object.QueryInterface(IID_ZFXBaseUnknown, nullptr), E_POINTER);
    EXPECT_EQ(object.QueryInterface("ZFXIAlias", nullptr), E_POINTER);
    EXPECT_EQ(object.GetTypeInfoCount(nullptr), E_POINTER);
}

} // namespace
