#include "object-model/ZFXMetaClass.h"
#include "object-model/ZFXTie.h"
#include "support/DocumentTest.h"

namespace {

using enum ENUMTypeOfClass;

ZFXMetaClass* Declare(const char* name, ENUMTypeOfClass kind, ZFXMetaClass* base, const char* extended = nullptr) {
    return fct_RetrieveMetaObject(name, kind, base, extended, "Tests", 0);
}

TEST(MetaClass, KeepsItsFirstDeclaration) {
    ZFXMetaClass* found = fct_FindMetaObject("Looked up first");
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->GetTypeOfClass(), Implementation);
    EXPECT_FALSE(found->IsDeclared());
    EXPECT_EQ(Declare("Looked up first", DataExtension, ZFXBaseUnknown::MetaObject()), found);
    EXPECT_EQ(Declare("Looked up first", Interface, nullptr), found);
    EXPECT_TRUE(found->IsDeclared());
    EXPECT_EQ(found->GetTypeOfClass(), DataExtension);
    EXPECT_EQ(found->GetBaseMetaClass(), ZFXBaseUnknown::MetaObject());
    for (const auto& [name, isKind] :
         {std::pair("Looked up first", 1), {"ZFXBaseUnknown", 1}, {"ZFXIAlias", 0}, {nullptr, 0}})
        EXPECT_EQ(found->IsAKindOf(name), isKind);
    EXPECT_EQ(fct_FindMetaObject(nullptr), nullptr);
    EXPECT_EQ(Declare(nullptr, Interface, nullptr), nullptr);
}

TEST(MetaClass, ExtendsTheLateTypesThatItNames) {
    const ZFXMetaClass* extension = Declare("An extension", DataExtension, ZFXnull::MetaObject(), "A late type");
    EXPECT_EQ(extension->IsExtensionOf(fct_FindMetaObject("A late type")), 1);
    EXPECT_EQ(extension->IsExtensionOf(fct_FindMetaObject("Another late type")), 0);
    EXPECT_EQ(extension->IsExtensionOf(nullptr), 0);
    EXPECT_TRUE(fct_FindMetaObject("A late type")->IsExtended());
    EXPECT_FALSE(fct_FindMetaObject("Another late type")->IsExtended());
}

TEST(MetaClass, HasTheKindOfItsClassAndAnIdentifierComputedFromItsName) {
    const auto make = [](const char* name, int kind) { return ZFXMetaClass(nullptr, name, nullptr, nullptr, kind); };
    for (const auto& [number, kind] : {std::pair(0, Interface), {1, Implementation}, {2, DataExtension}, {6, TIE}})
        EXPECT_EQ(make("X", number).GetTypeOfClass(), kind) << number;
    EXPECT_EQ(make("a", 1).GetClassId(), make("a", 1).GetClassId());
    EXPECT_NE(make("a", 1).GetClassId(), make("b", 1).GetClassId());
    EXPECT_EQ(ZFXIAlias::MetaObject()->GetTypeOfClass(), Interface);
    EXPECT_EQ(ZFXIAlias::MetaObject()->GetClassId(), IID_ZFXIAlias);
    for (const ZFXMetaClass* root : {ZFXBaseUnknown::MetaObject(), ZFXnull::MetaObject()})
        EXPECT_EQ(root->GetTypeOfClass(), Implementation);
}

/// Offers ZFXIAlias on features of the type "AdaptorTestLT".
struct Adaptor final : ZFXIAlias {
    static ZFXMetaClass* Class() {
        return fct_RetrieveAdaptorMetaObject(IID_ZFXIAlias, "ZFXIAlias", ZFXIAlias::MetaObject(), Extension());
    }
    static ZFXMetaClass* Extension() {
        return Declare("AdaptorTestExtension", DataExtension, ZFXnull::MetaObject(), "AdaptorTestLT");
    }
    template <ZFXImplementationMaker Maker>
    static ZFXBaseUnknown* Make(ZFXBaseUnknown* object, void*) {
        auto* adaptor = new Adaptor;
        EXPECT_EQ(Tie_Construct(adaptor, adaptor->tie, Class(), CLSID_ZFXBaseUnknown, DataExtension, nullptr, Maker,
                                object, nullptr),
                  nullptr);
        if (adaptor->tie.implementation != nullptr)
            return adaptor;
        adaptor->Release();
        return nullptr;
    }
    static ZFXBaseUnknown* MakeImplementation() { return new ZFXBaseUnknown; }
    static ZFXBaseUnknown* NoMemory() { return nullptr; }

    using ZFXIAlias::QueryInterface;
    HRESULT QueryInterface(const IID& iid, void** result) override {
        return Tie_Query(this, tie, Class(), iid, result);
    }
    ULONG AddRef() override { return Tie_AddRef(tie); }
    ULONG Release() override { return Tie_Release(this, tie); }
    ~Adaptor() override { Tie_Destruct(this, tie); }
    void SetAlias(const ZFXUnicodeString&) override {}
    ZFXUnicodeString GetAlias() override { return "adaptor"; }

    ZFXTie tie;
};

/// Records the adaptor that is attached to it.
struct AdaptedObject final : ZFXBaseUnknown {
    void ChangeComponentState(ZFXComponentState state, ZFXBaseUnknown* adaptor) override {
        attached = state == ZFXComponentState::AdaptorAttached ? adaptor : nullptr;
    }
    const ZFXBaseUnknown* attached = nullptr;
};

class AdaptorTest : public DocumentTest {
protected:
    void TearDown() override {
        EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), m_blocks) << "an adaptor or implementation was not released";
        DocumentTest::TearDown();
    }
    static ZFXFillDictionary Entry(ZFXAdaptorFactory factory) {
        return {Adaptor::Extension(), ZFXIAlias::MetaObject(), factory, nullptr, 1};
    }
    std::string Alias() const {
        const ZFXIAlias_var alias(load);
        return alias == nullptr ? "no interface" : Narrow(alias->GetAlias());
    }

    MemoryFeature load = document.Model().Feature("AdaptorTestLT", "object");
    const long m_blocks = ZFXBaseUnknown::LiveAllocations();
};

TEST_F(AdaptorTest, IsOfferedWhileADictionaryEntryExists) {
    EXPECT_EQ(Alias(), "object");
    {
        const auto entry = Entry(Adaptor::Make<Adaptor::MakeImplementation>);
        EXPECT_EQ(Alias(), "adaptor");
        {
            const auto second = Entry(Adaptor::Make<Adaptor::NoMemory>);
            EXPECT_EQ(Adaptor::Extension()->CountAdaptorFactories(), 2);
            EXPECT_EQ(Alias(), "adaptor") << "the first entry counts";
        }
        EXPECT_EQ(Adaptor::Extension()->CountAdaptorFactories(), 1);
    }
    EXPECT_EQ(Alias(), "object");
    const auto entry = Entry(Adaptor::Make<Adaptor::NoMemory>);
    EXPECT_EQ(Alias(), "no interface") << "the implementation cannot be created";
}

TEST_F(AdaptorTest, ForwardsToItsObjectWhichItKeepsAlive) {
    auto* object = new AdaptedObject;
    auto* adaptor = static_cast<Adaptor*>(Adaptor::Make<Adaptor::MakeImplementation>(object, nullptr));
    EXPECT_EQ(object->attached, adaptor);
    EXPECT_EQ(object->Release(), 1U) << "the reference of the adaptor";
    EXPECT_EQ(adaptor->GetImpl(), object);
    EXPECT_EQ(Tie_StackCtx::Run(adaptor->tie)->GetImpl(), object);
    void* found = nullptr;
    EXPECT_EQ(adaptor->QueryInterface(IID_ZFXIAlias, &found), S_OK);
    EXPECT_EQ(found, adaptor);
    EXPECT_EQ(adaptor->QueryInterface(IID_ZFXBaseUnknown, &found), S_OK);
    EXPECT_EQ(found, object);
    EXPECT_EQ(adaptor->QueryInterface(IID_ZFXISpecObject, &found), E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(adaptor->QueryInterface(IID_ZFXIAlias, nullptr), E_POINTER);
    // Its implementation has no automation.
    unsigned int count = 7;
    EXPECT_EQ(Tie_GetTypeInfoCount(adaptor->tie, &count), S_OK);
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(Tie_GetTypeInfo(adaptor->tie, 0, 0, nullptr), E_NOTIMPL);
    EXPECT_EQ(Tie_GetIDsOfNames(adaptor->tie, IID_ZFXIAlias, nullptr, 0, 0, nullptr), E_NOTIMPL);
    EXPECT_EQ(Tie_Invoke(adaptor->tie, 0, IID_ZFXIAlias, 0, 0, nullptr, nullptr, nullptr, nullptr), E_NOTIMPL);
    EXPECT_EQ(adaptor->Release(), 1U);
    EXPECT_EQ(adaptor->Release(), 0U);
    EXPECT_EQ(object->attached, nullptr);
    EXPECT_EQ(object->Release(), 0U) << "the reference of the cast";
}

TEST_F(AdaptorTest, HasTheMetaClassOfItsInterfaceAndImplementation) {
    const ZFXMetaClass* metaClass = Adaptor::Class();
    EXPECT_EQ(Adaptor::Class(), metaClass) << "a second look-up";
    EXPECT_STREQ(metaClass->IsA(), "ZFXIAlias");
    EXPECT_EQ(metaClass->GetTypeOfClass(), TIE);
    EXPECT_EQ(metaClass->GetClassId(), IID_ZFXIAlias);
    EXPECT_EQ(metaClass->GetBaseMetaClass(), ZFXIAlias::MetaObject());
    EXPECT_EQ(metaClass->GetImplementationMetaClass(), Adaptor::Extension());
}

} // namespace
