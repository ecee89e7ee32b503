#include "support/Results.h"
#include "support/TestFolder.h"

#include "errors/MessageCatalog.h"
#include "object-model/ZFXHandle.h"
#include "text/Utf8Path.h"

#include <gtest/gtest.h>

#include <functional>

#ifdef __linux__
#include <unistd.h>
#endif

namespace {

using Error = ZFXHandle<ZFXError>;

HRESULT Raise(const char* id) {
    return ZFXError::GetReturn(ZFXErrorTypeInput, new ZFXInputError(id, "Tests"), nullptr, "File.cpp", 7);
}

TEST(Error, IsFoundUnderACodeOfItsOwn) {
    const HRESULT first = Raise("First");
    const HRESULT second = Raise("Second");
    EXPECT_LT(first, 0);
    EXPECT_NE(first, E_FAIL);
    EXPECT_EQ(ResultText(first), "First");
    EXPECT_EQ(ResultText(second), "Second");
    EXPECT_EQ(ZFXError::ZFXGetLastError(first, nullptr)->GetId(), first);
    EXPECT_EQ(ZFXError::ZFXGetLastError(E_FAIL, nullptr), nullptr);
}

TEST(Error, IsReleasedWhenThirtyTwoOthersWereRaised) {
    const HRESULT code = Raise("First");
    for (int i = 1; i < ZFXError::kRegistered; ++i)
        static_cast<void>(Raise("Later"));
    EXPECT_NE(ZFXError::ZFXGetLastError(code, nullptr), nullptr);
    const long before = ZFXBaseUnknown::LiveAllocations();
    static_cast<void>(Raise("Last"));
    EXPECT_EQ(ZFXError::ZFXGetLastError(code, nullptr), nullptr);
    EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), before);
}

TEST(Error, WithoutAnErrorObjectTheTypeGivesTheCode) {
    EXPECT_EQ(ZFXError::GetReturn(ZFXErrorTypeSuccess, nullptr, nullptr, "", 0), S_OK);
    EXPECT_EQ(ZFXError::GetReturn(ZFXErrorTypeInput, nullptr, nullptr, "", 0), E_FAIL);
}

TEST(Error, RecordsTheSourcePosition) {
    const auto fresh = Error::Attach(new ZFXInputError("Id", "Tests"));
    EXPECT_STREQ(fresh->GetSourceFileName(), "");
    EXPECT_EQ(fresh->GetSourceLineNumber(), 0);
    EXPECT_EQ(fresh->GetId(), 0);
    ZFXError* raised = ZFXError::ZFXGetLastError(Raise("Id"), nullptr);
    EXPECT_STREQ(raised->GetSourceFileName(), "File.cpp");
    EXPECT_EQ(raised->GetSourceLineNumber(), 7);
    EXPECT_EQ(Narrow(raised->GetNLSSource()), "File.cpp:7");
    std::ostringstream history;
    raised->PrintHistory(history);
    EXPECT_EQ(history.str(), "ZFXInputError Tests.Id raised at File.cpp:7\n");
}

TEST(Error, ThrowsAReferenceToItself) {
    const auto error = Error::Attach(new ZFXInputError("Id", "Tests"));
    try {
        error->Throw("Other.cpp", 3);
    } catch (const std::reference_wrapper<ZFXError>& thrown) {
        EXPECT_EQ(&thrown.get(), error.Get());
    }
    EXPECT_EQ(Narrow(error->GetNLSSource()), "Other.cpp:3");
}

TEST(Error, IsAnInputErrorAndAnError) {
    const auto error = ZFXHandle<ZFXInputError>::Attach(new ZFXInputError("Id", "Tests"));
    EXPECT_STREQ(error->IsA(), "ZFXInputError");
    EXPECT_EQ(error->IsAKindOf("ZFXInputError"), 1);
    EXPECT_EQ(error->IsAKindOf("ZFXError"), 1);
    EXPECT_EQ(error->IsAKindOf("ZFXIAlias"), 0);
    EXPECT_STREQ(error->GetErrorTable()->errorClass, "ZFXInputError");
    EXPECT_STREQ(error->GetErrorTable()->base->errorClass, "ZFXError");
    EXPECT_EQ(error->GetErrorTable()->base->base, nullptr);
}

TEST(Error, HasNoHelp) {
    const auto error = Error::Attach(new ZFXInputError("Id", "Tests"));
    EXPECT_EQ(Narrow(error->GetNLSHelpFile()), "");
    EXPECT_EQ(error->GetNLSHelpContext(), 0);
}

TEST(Error, CloneHasTheContentButNotTheCode) {
    const auto error = ZFXHandle<ZFXInputError>::Attach(new ZFXInputError("Id", "Tests"));
    EXPECT_EQ(error->GetReturnCode(), 0);
    EXPECT_EQ(error->GetInformationOnErrorType(), 0);
    ZFXUnicodeString parameter("b");
    error->SetNLSParameters(1, &parameter);
    error->SetReturnCode(-100);
    error->SetInformationOnErrorType(ZFXErrorTypeInput);
    error->SetSourceContext("context");
    error->AddRef(); // for the registry
    static_cast<void>(ZFXError::GetReturn(ZFXErrorTypeInput, error, nullptr, "File.cpp", 7));
    const auto clone = Error::Attach(error->CloneSelf());
    EXPECT_STREQ(clone->GetMsgId(), "Id");
    EXPECT_STREQ(clone->GetMsgCatalog(), "Tests");
    EXPECT_EQ(Narrow(clone->DiagnosticParameters().at(0)), "b");
    EXPECT_EQ(clone->GetReturnCode(), -100);
    EXPECT_EQ(clone->GetInformationOnErrorType(), ZFXErrorTypeInput);
    EXPECT_EQ(Narrow(clone->GetSourceContext()), "context");
    EXPECT_EQ(Narrow(clone->GetNLSSource()), "File.cpp:7");
    EXPECT_EQ(clone->GetId(), 0);
}

class CatalogTest : public ::testing::Test {
protected:
    CatalogTest() {
        m_folder.Write("Tests.msg", "# comment\n\nId.Diagnostic = Bad: /P1, /P2 \r\nId.Advice=Fix = it\n"
                                    "Once.Diagnostic = /P1 /P2 /P1 /P3 /P //P2\n"
                                    "All.Request = r /P1 /P2\nAll.Diagnostic = d /P1 /P2\nAll.Advice = a /P1 /P2\n");
        m_folder.Write("Tests_xy.msg", "Id.Diagnostic = /P2, /P1: böse\n");
        MessageCatalog::SetFolder(m_folder.Path("."));
    }
    ~CatalogTest() override {
        MessageCatalog::SetFolder("/nowhere");
        MessageCatalog::SetLanguage("");
    }
    /// Returns the error "Id" with the parameters "ä" and "b".
    static Error MakeError() {
        auto error = Error::Attach(new ZFXInputError("Id", "Tests"));
        ZFXUnicodeString a("ä");
        ZFXUnicodeString b("b");
        error->SetNLSParameters(2, &a, &b);
        return error;
    }

    const TestFolder m_folder;
};

TEST_F(CatalogTest, MessageJoinsTheSectionsWithTheirParameters) {
    const Error error = MakeError();
    EXPECT_EQ(Narrow(error->GetNLSRequest()), "");
    EXPECT_EQ(Narrow(error->GetNLSDiagnostic()), "Bad: ä, b");
    EXPECT_EQ(Narrow(error->GetNLSAdvice()), "Fix = it");
    EXPECT_EQ(Narrow(error->GetNLSMessage()), "Bad: ä, b Fix = it");
    EXPECT_STREQ(error->GetMessageText(), "Bad: ä, b Fix = it");
}

TEST_F(CatalogTest, EachSectionHasParametersOfItsOwn) {
    const auto error = Error::Attach(new ZFXInputError("All", "Tests"));
    ZFXUnicodeString a("A");
    ZFXUnicodeString b("B");
    error->SetNLSRequestParams(2, &a, &b);
    error->SetNLSDiagnosticParams(2, &b, nullptr); // null counts as empty
    error->SetNLSAdviceParams(1, &a);
    EXPECT_EQ(Narrow(error->GetNLSMessage()), "r A B d B  a A /P2");
    error->SetNLSParameters(2, nullptr, &b);
    EXPECT_EQ(Narrow(error->GetNLSMessage()), "r  B d  B a  B");
    error->SetNLSParameters(0, nullptr);
    EXPECT_EQ(Narrow(error->GetNLSMessage()), "r /P1 /P2 d /P1 /P2 a /P1 /P2");
}

TEST_F(CatalogTest, PlaceholdersAreReplacedInOnePass) {
    const auto error = Error::Attach(new ZFXInputError("Once", "Tests"));
    ZFXUnicodeString a("x/P2y");
    ZFXUnicodeString b("/P1");
    error->SetNLSParameters(2, &a, &b);
    EXPECT_EQ(Narrow(error->GetNLSDiagnostic()), "x/P2y /P1 x/P2y /P3 /P //P1");
}

TEST_F(CatalogTest, LanguageAppliesToErrorsRaisedBefore) {
    const Error error = MakeError();
    for (const char* language : {"xy", "XY_ab", "xy-AB.UTF-8"}) {
        EXPECT_TRUE(MessageCatalog::SetLanguage(language)) << language;
        EXPECT_EQ(Narrow(error->GetNLSMessage()), "b, ä: böse Fix = it") << language; // the advice is not translated
    }
    for (const char* english : {"en_GB", "C", "posix", ""}) {
        EXPECT_TRUE(MessageCatalog::SetLanguage(english)) << english;
        EXPECT_EQ(Narrow(error->GetNLSMessage()), "Bad: ä, b Fix = it") << english;
    }
}

TEST_F(CatalogTest, UnknownLanguageMeansEnglish) {
    EXPECT_TRUE(MessageCatalog::SetLanguage("xy"));
    EXPECT_FALSE(MessageCatalog::SetLanguage("zz"));
    EXPECT_EQ(Narrow(MakeError()->GetNLSMessage()), "Bad: ä, b Fix = it");
    EXPECT_EQ(MessageCatalog::Languages(), (std::vector<std::string>{"en", "xy"}));
}

TEST_F(CatalogTest, WithoutACatalogTheMessageIsTheId) {
    MessageCatalog::SetFolder("/nowhere");
    EXPECT_EQ(Narrow(MakeError()->GetNLSMessage()), "Id");
    EXPECT_EQ(MessageCatalog::Languages(), std::vector<std::string>{"en"});
}

#ifdef __linux__
TEST_F(CatalogTest, FileOrFolderWithoutPermissionCountsAsMissing) {
    using std::filesystem::perms;
    const auto user = geteuid();
    const auto other = user == 0 ? uid_t{65534} : user; // root can read every file
    ASSERT_EQ(seteuid(other), 0);
    const auto setPermissions = [&](const char* name, perms permissions) {
        ASSERT_EQ(seteuid(user), 0);
        std::filesystem::permissions(Utf8::ToPath(m_folder.Path(name)), permissions);
        ASSERT_EQ(seteuid(other), 0);
    };
    EXPECT_EQ(Narrow(MakeError()->GetNLSDiagnostic()), "Bad: ä, b");
    setPermissions("Tests.msg", perms::none);
    MessageCatalog::SetFolder(m_folder.Path(".")); // reads the file again
    EXPECT_EQ(Narrow(MakeError()->GetNLSMessage()), "Id");
    EXPECT_TRUE(MessageCatalog::SetLanguage("xy"));
    setPermissions("", perms::none);
    EXPECT_FALSE(MessageCatalog::SetLanguage("xy"));
    setPermissions("", perms::owner_all);
    EXPECT_EQ(seteuid(user), 0);
}
#endif

} // namespace
