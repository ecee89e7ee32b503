#include "support/Results.h"
#include "support/TestFolder.h"

#include "errors/MessageCatalog.h"
#include "object-model/ZFXHandle.h"
#include "text/Utf8Path.h"

#include <gtest/gtest.h>

#include <functional>
#include <tuple>

#ifdef __linux__
#include <unistd.h>
#endif

namespace {

using Error = ZFXHandle<ZFXInputError>;

Error MakeError(const char* id = "Id") { return Error::Attach(new ZFXInputError(id, "Tests")); }

HRESULT Raise(Error error) { return ZFXError::GetReturn(ZFXErrorTypeInput, error.Detach(), nullptr, "File.cpp", 7); }

/// Returns what an error contains, apart from the code under which it is found and the texts of its message.
std::string Content(ZFXError& error) {
    std::ostringstream content;
    content << error.GetMsgCatalog() << "." << error.GetMsgId() << " at " << error.GetSourceFileName() << ":"
            << error.GetSourceLineNumber() << " in " << Narrow(error.GetSourceContext()) << " returns "
            << error.GetReturnCode() << " of type " << error.GetInformationOnErrorType();
    for (const ZFXUnicodeString& parameter : error.DiagnosticParameters())
        content << " /P " << Narrow(parameter);
    return content.str();
}

TEST(Error, IsFoundUnderACodeOfItsOwn) {
    const HRESULT first = Raise(MakeError("First"));
    const HRESULT second = Raise(MakeError("Second"));
    EXPECT_LT(first, 0);
    EXPECT_EQ(ResultText(first), "First");
    EXPECT_EQ(ResultText(second), "Second");
    EXPECT_EQ(ZFXError::ZFXGetLastError(first, nullptr)->GetId(), first);
    EXPECT_EQ(ZFXError::ZFXGetLastError(E_FAIL, nullptr), nullptr);
    // Without an error object the type gives the code.
    EXPECT_EQ(ZFXError::GetReturn(ZFXErrorTypeSuccess, nullptr, nullptr, "", 0), S_OK);
    EXPECT_EQ(ZFXError::GetReturn(ZFXErrorTypeInput, nullptr, nullptr, "", 0), E_FAIL);
}

TEST(Error, IsReleasedWhenThirtyTwoOthersWereRaised) {
    ZFXError::ReleaseRegistered();
    const long others = ZFXError::LiveObjects();
    const HRESULT code = Raise(MakeError());
    EXPECT_EQ(ZFXError::Latest()->GetId(), code);
    for (int i = 1; i < ZFXError::kRegistered; ++i)
        static_cast<void>(Raise(MakeError("Later")));
    EXPECT_NE(ZFXError::ZFXGetLastError(code, nullptr), nullptr);
    const long before = ZFXBaseUnknown::LiveAllocations();
    static_cast<void>(Raise(MakeError("Last")));
    EXPECT_EQ(ZFXError::ZFXGetLastError(code, nullptr), nullptr);
    EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), before);
    EXPECT_STREQ(ZFXError::Latest()->GetMsgId(), "Last");
    EXPECT_EQ(ZFXError::LiveObjects(), others);
    ZFXError::ReleaseRegistered();
    EXPECT_EQ(ZFXError::Latest(), nullptr);
    EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), before - ZFXError::kRegistered);
    EXPECT_EQ(ZFXError::LiveObjects(), others);
}

TEST(Error, IsAnInputErrorAndAnError) {
    const Error error = MakeError();
    EXPECT_STREQ(error->IsA(), "ZFXInputError");
    EXPECT_EQ(error->IsAKindOf("ZFXError"), 1);
    EXPECT_EQ(error->IsAKindOf("ZFXIAlias"), 0);
    EXPECT_STREQ(error->GetErrorTable()->errorClass, "ZFXInputError");
    EXPECT_STREQ(error->GetErrorTable()->base->errorClass, "ZFXError");
    EXPECT_EQ(error->GetErrorTable()->base->base, nullptr);
}

TEST(Error, RecordsWhereItIsRaisedOrThrownAndCopiesThatToItsClone) {
    const Error error = MakeError();
    EXPECT_EQ(Content(*error), "Tests.Id at :0 in  returns 0 of type 0");
    EXPECT_EQ(error->GetId(), 0);
    EXPECT_EQ(Narrow(error->GetNLSHelpFile()), "");
    EXPECT_EQ(error->GetNLSHelpContext(), 0);
    static_cast<void>(Raise(error));
    std::ostringstream history;
    error->PrintHistory(history);
    EXPECT_EQ(history.str(), "ZFXInputError Tests.Id raised at File.cpp:7\n");
    try {
        error->Throw("Other.cpp", 3);
    } catch (const std::reference_wrapper<ZFXError>& thrown) {
        EXPECT_EQ(&thrown.get(), error.Get());
    }
    EXPECT_EQ(Narrow(error->GetNLSSource()), "Other.cpp:3");
    ZFXUnicodeString parameter("b");
    error->SetNLSParameters(1, &parameter);
    error->SetReturnCode(-100);
    error->SetInformationOnErrorType(ZFXErrorTypeInput);
    error->SetSourceContext("context");
    const auto clone = ZFXHandle<ZFXError>::Attach(error->CloneSelf());
    EXPECT_EQ(Content(*clone), "Tests.Id at Other.cpp:3 in context returns -100 of type 2 /P b");
    EXPECT_EQ(clone->GetId(), 0);
}

class CatalogTest : public ::testing::Test {
protected:
    CatalogTest() {
        m_folder.Write("Tests.msg", "# comment\n\nId.Diagnostic = Bad: /P1, /P2 \r\nId.Advice=Fix = it\n"
                                    "Once.Diagnostic = /P1 /P2 /P1 /P3 /P //P2\n"
                                    "All.Request = r /P1 /P2\nAll.Diagnostic = d /P1 /P2\nAll.Advice = a /P1 /P2\n");
        m_folder.Write("Tests_az.msg", "Id.Diagnostic = /P2, /P1: böse\n");
        MessageCatalog::SetFolder(m_folder.Path("."));
        ZFXUnicodeString a("ä"), b("b");
        m_error->SetNLSParameters(2, &a, &b);
    }
    void TearDown() override {
        MessageCatalog::SetFolder("/nowhere");
        MessageCatalog::SetLanguage("");
    }
    std::string Message() const {
        EXPECT_EQ(Narrow(m_error->GetNLSMessage()), m_error->GetMessageText());
        return m_error->GetMessageText();
    }

    static constexpr const char* kEnglish = "Bad: ä, b Fix = it";
    static constexpr const char* kTranslated = "b, ä: böse Fix = it"; // the advice is not translated
    const Error m_error = MakeError();
    const TestFolder m_folder;
};

TEST_F(CatalogTest, MessageJoinsTheSectionsWithTheirParameters) {
    EXPECT_EQ(Message(), kEnglish);
    const Error error = MakeError("All");
    ZFXUnicodeString a("A"), b("B");
    error->SetNLSRequestParams(2, &a, &b);
    error->SetNLSDiagnosticParams(2, &b, nullptr); // null counts as empty
    error->SetNLSAdviceParams(1, &a);
    EXPECT_EQ(Narrow(error->GetNLSMessage()), "r A B d B  a A /P2");
    error->SetNLSParameters(2, nullptr, &b);
    EXPECT_EQ(Narrow(error->GetNLSMessage()), "r  B d  B a  B");
    error->SetNLSParameters(0, nullptr);
    EXPECT_EQ(Narrow(error->GetNLSRequest()), "r /P1 /P2");
    EXPECT_EQ(Narrow(error->GetNLSDiagnostic()), "d /P1 /P2");
    EXPECT_EQ(Narrow(error->GetNLSAdvice()), "a /P1 /P2");
    const Error once = MakeError("Once"); // placeholders are replaced in one pass
    ZFXUnicodeString c("x/P2y"), d("/P1");
    once->SetNLSParameters(2, &c, &d);
    EXPECT_EQ(Narrow(once->GetNLSDiagnostic()), "x/P2y /P1 x/P2y /P3 /P //P1");
}

TEST_F(CatalogTest, LanguageAppliesToErrorsRaisedBefore) {
    const std::tuple<const char*, bool, const char*> rows[] = {
        {"az", true, kTranslated}, {"en_GB", true, kEnglish},          {"AZ_ab", true, kTranslated},
        {"C", true, kEnglish},     {"az-AB.UTF-8", true, kTranslated}, {"zz", false, kEnglish},
        {"az", true, kTranslated}, {"posix", true, kEnglish},          {"az", true, kTranslated},
        {"", true, kEnglish}};
    for (const auto& [language, isKnown, message] : rows) {
        EXPECT_EQ(MessageCatalog::SetLanguage(language), isKnown) << language;
        EXPECT_EQ(Message(), message) << language;
    }
    EXPECT_EQ(MessageCatalog::Languages(), (std::vector<std::string>{"az", "en"}));
    MessageCatalog::SetFolder("/nowhere");
    EXPECT_EQ(Message(), "Id") << "without a catalog";
    EXPECT_EQ(MessageCatalog::Languages(), std::vector<std::string>{"en"});
}

#ifdef __linux__
TEST_F(CatalogTest, FileOrFolderWithoutPermissionCountsAsMissing) {
    using std::filesystem::perms;
    const auto user = geteuid();
    const std::tuple<const char*, perms, const char*, bool> rows[] = {
        {"", perms::all, kEnglish, true}, {"Tests.msg", perms::none, "Id", true}, {"", perms::none, "Id", false}};
    for (const auto& [name, permissions, message, hasTranslation] : rows) {
        std::filesystem::permissions(Utf8::ToPath(m_folder.Path(name)), permissions);
        ASSERT_EQ(seteuid(user == 0 ? uid_t{65534} : user), 0); // root can read every file
        MessageCatalog::SetFolder(m_folder.Path("."));          // reads the files again
        EXPECT_EQ(Message(), message) << name;
        EXPECT_EQ(MessageCatalog::SetLanguage("az"), hasTranslation) << name;
        MessageCatalog::SetLanguage("");
        ASSERT_EQ(seteuid(user), 0);
    }
    std::filesystem::permissions(Utf8::ToPath(m_folder.Path("")), perms::owner_all);
}
#endif

} // namespace
