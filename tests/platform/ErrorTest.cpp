#include "support/Results.h"

#include "errors/MessageCatalog.h"
#include "text/Utf8Path.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <thread>

namespace {

HRESULT Raise(const char* id) {
    return ZFXError::GetReturn(ZFXErrorTypeInput, new ZFXInputError(id, "Tests"), nullptr, "File.cpp", 7);
}

TEST(Error, IsFoundUnderItsOwnCodeUntilManyOthersCame) {
    const HRESULT first = Raise("First");
    const HRESULT second = Raise("Second");
    EXPECT_LT(first, 0);
    EXPECT_NE(first, E_FAIL);
    EXPECT_EQ(ResultText(first), "First");
    EXPECT_EQ(ResultText(second), "Second");
    EXPECT_EQ(ZFXError::ZFXGetLastError(E_FAIL, nullptr), nullptr);
    ZFXError* error = ZFXError::ZFXGetLastError(first, nullptr);
    EXPECT_STREQ(error->GetSourceFileName(), "File.cpp");
    EXPECT_EQ(error->GetSourceLineNumber(), 7);
    EXPECT_TRUE(error->IsAKindOf("ZFXInputError") && error->IsAKindOf("ZFXError"));
    std::thread([&] {
        EXPECT_EQ(ResultText(Raise("Elsewhere")), "Elsewhere");
        EXPECT_EQ(ZFXError::ZFXGetLastError(first, nullptr), nullptr);
    }).join();
    const long before = ZFXBaseUnknown::LiveAllocations();
    for (int i = 0; i < 10 * ZFXError::kRegistered; ++i)
        Raise("Later");
    EXPECT_LE(ZFXBaseUnknown::LiveAllocations(), before + ZFXError::kRegistered);
    EXPECT_EQ(ZFXError::ZFXGetLastError(first, nullptr), nullptr);
    EXPECT_EQ(ZFXError::GetReturn(ZFXErrorTypeSuccess, nullptr, nullptr, "", 0), S_OK);
    EXPECT_EQ(ZFXError::GetReturn(ZFXErrorTypeInput, nullptr, nullptr, "", 0), E_FAIL);
}

TEST(Error, SpeaksAsItsCatalogSays) {
    const auto folder = std::filesystem::temp_directory_path() / Utf8::ToPath("qvr-catalog-Träger");
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "Tests.msg") << "# comment\n\nId.Diagnostic = Bad: /P1, /P2 \r\nId.Advice=Mend = it\n"
                                        << "Once.Diagnostic = /P1 /P2 /P1 /P3 /P //P2\n";
    std::ofstream(folder / "Tests_xy.msg") << "Id.Diagnostic = /P2, /P1: böse\n";
    MessageCatalog::SetFolder(Utf8::FromPath(folder));
    auto* error = new ZFXInputError("Id", "Tests");
    ZFXUnicodeString a("ä");
    ZFXUnicodeString b("b");
    error->SetNLSDiagnosticParams(2, &a, &b);
    error->SetReturnCode(-100);
    a = "changed"; // parameters are copied
    EXPECT_EQ(Text(error->GetNLSMessage()), "Bad: ä, b Mend = it");
    EXPECT_STREQ(error->GetMessageText(), "Bad: ä, b Mend = it");
    ZFXError* clone = error->CloneSelf();
    EXPECT_EQ(Text(clone->GetNLSDiagnostic()), "Bad: ä, b");
    EXPECT_EQ(clone->GetReturnCode(), -100);
    clone->Release();
    EXPECT_THROW(error->Throw("Other.cpp", 3), std::reference_wrapper<ZFXError>);
    EXPECT_EQ(Text(error->GetNLSSource()), "Other.cpp:3");
    // Another language is spoken from now on, also by what was refused before; what it lacks is said in English.
    for (const char* language : {"xy", "XY_ab", "xy-AB.UTF-8"}) {
        EXPECT_TRUE(MessageCatalog::SetLanguage(language)) << language;
        EXPECT_EQ(Text(error->GetNLSMessage()), "b, ä: böse Mend = it") << language;
    }
    for (const std::string language : {"zz", "en_GB", ""}) {
        EXPECT_EQ(MessageCatalog::SetLanguage(language), language != "zz") << language;
        EXPECT_EQ(Text(error->GetNLSMessage()), "Bad: ä, b Mend = it") << language;
    }
    auto* once = new ZFXInputError("Once", "Tests");
    a = "x/P2y";
    b = "/P1";
    once->SetNLSParameters(2, &a, &b); // placeholders inside a parameter and those without a parameter stay
    EXPECT_EQ(Text(once->GetNLSDiagnostic()), "x/P2y /P1 x/P2y /P3 /P //P1");
    once->Release();
    EXPECT_EQ(MessageCatalog::Languages(), (std::vector<std::string>{"en", "xy"}));
    error->Release();
    std::filesystem::remove_all(folder);
    MessageCatalog::SetFolder("/nowhere");
    auto* silent = new ZFXInputError("Id", "Tests");
    EXPECT_EQ(Text(silent->GetNLSMessage()), "Id"); // without a catalog the id speaks for itself
    silent->Release();
}

} // namespace
