#include "object-model/ZFXMetaClass.h"
#include "object-model/ZFXTie.h"
#include "support/DocumentTest.h"

namespace {

TEST(MetaClass, IsTheSameForEachLookUpOfAName) {
    ZFXMetaClass* first = fct_FindMetaObject("A type that nobody declared yet");
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(fct_FindMetaObject("A type that nobody declared yet"), first);
    EXPECT_EQ(first->GetTypeOfClass(), ENUMTypeOfClass::Implementation);
    EXPECT_FALSE(first->IsDeclared());
    EXPECT_EQ(fct_FindMetaObject(nullptr), nullptr);
    EXPECT_EQ(fct_RetrieveMetaObject(nullptr, ENUMTypeOfClass::Interface, nullptr, nullptr, "Tests", 0), nullptr);
}

TEST(MetaClass, KeepsItsFirstDeclaration) {
    const ZFXMetaClass* found = fct_FindMetaObject("Looked up first");
    const ZFXMetaClass* declared = fct_RetrieveMetaObject("Looked up first", ENUMTypeOfClass::DataExtension,
                                                          ZFXBaseUnknown::MetaObject(), nullptr, "Tests", 0);
    EXPECT_EQ(declared, found);
    EXPECT_EQ(fct_RetrieveMetaObject("Looked up first", ENUMTypeOfClass::Interface, nullptr, nullptr, "Tests", 0),
              found);
    EXPECT_TRUE(declared->IsDeclared());
    EXPECT_EQ(declared->GetTypeOfClass(), ENUMTypeOfClass::DataExtension);
    EXPECT_EQ(declared->GetBaseMetaClass(), ZFXBaseUnknown::MetaObject());
    EXPECT_EQ(declared->IsAKindOf("Looked up first"), 1);
    EXPECT_EQ(declared->IsAKindOf("ZFXBaseUnknown"), 1);
    EXPECT_EQ(declared->IsAKindOf("ZFXIAlias"), 0);
    EXPECT_EQ(declared->IsAKindOf(nullptr), 0);
}

TEST(MetaClass, ExtendsTheLateTypesThatItNames) {
    const ZFXMetaClass* extension = fct_RetrieveMetaObject("An extension", ENUMTypeOfClass::DataExtension,
                                                           ZFXnull::MetaObject(), "A late type", "Tests", 0);
    EXPECT_EQ(extension->IsExtensionOf(fct_FindMetaObject("A late type")), 1);
    EXPECT_EQ(extension->IsExtensionOf(fct_FindMetaObject("Another late type")), 0);
    EXPECT_EQ(extension->IsExtensionOf(nullptr), 0);
    EXPECT_TRUE(fct_FindMetaObject("A late type")->IsExtended());
    EXPECT_FALSE(fct_FindMetaObject("Another late type")->IsExtended());
}

TEST(MetaClass, HasTheKindOfItsClass) {
    const std::pair<int, ENUMTypeOfClass> rows[] = {{0, ENUMTypeOfClass::Interface},
                                                    {1, ENUMTypeOfClass::Implementation},
                                                    {2, ENUMTypeOfClass::DataExtension},
                                                    {6, ENUMTypeOfClass::TIE}};
    for (const auto& [number, kind] : rows)
        EXPECT_EQ(ZFXMetaClass(nullptr, "X", nullptr, nullptr, number).GetTypeOfClass(), kind) << number;
    EXPECT_EQ(ZFXIAlias::MetaObject()->GetTypeOfClass(), ENUMTypeOfClass::Interface);
    EXPECT_EQ(ZFXBaseUnknown::MetaObject()->GetTypeOfClass(), ENUMTypeOfClass::Implementation);
    EXPECT_EQ(ZFXnull::MetaObject()->GetTypeOfClass(), ENUMTypeOfClass::Implementation);
}

TEST(MetaClass, HasAnIdentifierComputedFromItsName) {
    const GUID a = ZFXMetaClass(nullptr, "a", nullptr, nullptr, 1).GetClassId();
    EXPECT_EQ(ZFXMetaClass(nullptr, "a", nullptr, nullptr, 1).GetClassId(), a);
    EXPECT_NE(ZFXMetaClass(nullptr, "b", nullptr, nullptr, 1).GetClassId(), a);
    EXPECT_EQ(ZFXIAlias::MetaObject()->GetClassId(), IID_ZFXIAlias);
}

/// Offers ZFXIAlias on features of the type "AdaptorTestLT".
class Adaptor final : public ZFXIAlias {
public:
    static ZFXMetaClass* Class() {
        return fct_RetrieveAdaptorMetaObject(IID_ZFXIAlias, "ZFXIAlias", ZFXIAlias::MetaObject(), Extension());
    }
    static ZFXMetaClass* Extension() {
        return fct_RetrieveMetaObject("AdaptorTestExtension", ENUMTypeOfClass::DataExtension, ZFXnull::MetaObject(),
                                      "AdaptorTestLT", "Tests", 0);
    }
    template <ZFXImplementationMaker Maker>
    static ZFXBaseUnknown* Make(ZFXBaseUnknown* object, void*) {
        auto* adaptor = new Adaptor;
        EXPECT_EQ(Tie_Construct(adaptor, adaptor->tie, Class(), CLSID_ZFXBaseUnknown, ENUMTypeOfClass::DataExtension,
                                nullptr, Maker, object, nullptr),
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
}

TEST_F(AdaptorTest, CastFailsIfTheImplementationCannotBeCreated) {
    const auto entry = Entry(Adaptor::Make<Adaptor::NoMemory>);
    EXPECT_EQ(Alias(), "no interface");
}

TEST_F(AdaptorTest, BelongsToItsObject) {
    const auto entry = Entry(Adaptor::Make<Adaptor::MakeImplementation>);
    const ZFXISpecObject_var feature(load);
    const ZFXIAlias_var alias(feature);
    auto* adaptor = static_cast<Adaptor*>(alias.Get());
    EXPECT_EQ(alias, feature);
    EXPECT_EQ(ZFXISpecObject_var(alias).Get(), feature.Get());
    EXPECT_EQ(ZFXIAlias_var(ZFXBaseUnknown_var(alias)).Get(), alias.Get());
    EXPECT_EQ(Tie_StackCtx::Run(adaptor->tie)->GetImpl(), load.Object());
    EXPECT_EQ(adaptor->QueryInterface(IID_ZFXIAlias, nullptr), E_POINTER);
    EXPECT_EQ(adaptor->AddRef(), 2U);
    EXPECT_EQ(adaptor->Release(), 1U);
}

TEST_F(AdaptorTest, HasTheMetaClassOfItsInterfaceAndImplementation) {
    const ZFXMetaClass* metaClass = Adaptor::Class();
    EXPECT_EQ(Adaptor::Class(), metaClass);
    EXPECT_STREQ(metaClass->IsA(), "ZFXIAlias");
    EXPECT_EQ(metaClass->GetTypeOfClass(), ENUMTypeOfClass::TIE);
    EXPECT_EQ(metaClass->GetClassId(), IID_ZFXIAlias);
    EXPECT_EQ(metaClass->GetBaseMetaClass(), ZFXIAlias::MetaObject());
    EXPECT_EQ(metaClass->GetImplementationMetaClass(), Adaptor::Extension());
}

TEST_F(AdaptorTest, ForwardsAutomationToItsImplementationWhichHasNone) {
    const auto entry = Entry(Adaptor::Make<Adaptor::MakeImplementation>);
    const ZFXIAlias_var alias(load);
    const ZFXTie& tie = static_cast<Adaptor*>(alias.Get())->tie;
    unsigned int count = 7;
    EXPECT_EQ(Tie_GetTypeInfoCount(tie, &count), S_OK);
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(Tie_GetTypeInfo(tie, 0, 0, nullptr), E_NOTIMPL);
    EXPECT_EQ(Tie_GetIDsOfNames(tie, IID_ZFXIAlias, nullptr, 0, 0, nullptr), E_NOTIMPL);
    EXPECT_EQ(Tie_Invoke(tie, 0, IID_ZFXIAlias, 0, 0, nullptr, nullptr, nullptr, nullptr), E_NOTIMPL);
}

} // namespace
