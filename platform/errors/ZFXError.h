#pragma once

#include "object-model/ZFXBaseUnknown.h"
#include "text/ZFXUnicodeString.h"

#include <iosfwd>
#include <string>
#include <vector>

/// The two kinds of report that this platform knows.
enum ZFXErrorType { ZFXErrorTypeSuccess = 1, ZFXErrorTypeInput = 2 };

/// The name of an error class and of the one it derives from.
struct ZFXErrorTable {
    const char* errorClass;
    const ZFXErrorTable* base;
};

/// A failure that a user must understand: a message id in a message catalog, its parameters, where it was
/// raised, and the code under which the platform registered it.
class ZFX_PLATFORM_EXPORT ZFXError : public ZFXBaseUnknown {
public:
    /// Both texts are copied; null counts as empty.
    ZFXError(const char* msgId, const char* catalog);
    ~ZFXError() override;

    static ZFXMetaClass* MetaObject();
    ZFXMetaClass* GetMetaObject() const override;

    /// Registers `error`, of whatever type, for the calling thread and returns the code to hand back, which is
    /// negative, not E_FAIL and no other error's. The registry takes over the caller's reference; it keeps the last
    /// kRegistered errors of a thread, frees the oldest, and all of them when the thread ends (E_FAIL after that).
    /// Without an error: S_OK for type 1, else E_FAIL. `object` is for a host's own records.
    static HRESULT GetReturn(int type, ZFXError* error, ZFXBaseUnknown* object, const char* sourceFile, int sourceLine);
    /// The error that this thread registered under the code, or null. [borrowed] It may be gone after the
    /// next GetReturn.
    static ZFXError* ZFXGetLastError(HRESULT code, ZFXBaseUnknown* object);
    static constexpr int kRegistered = 32;

    virtual int GetId() const;
    virtual const char* GetMsgId() const;
    virtual const char* GetMsgCatalog() const;
    virtual const char* GetSourceFileName() const;
    virtual void SetSourceFileName(const char* file);
    virtual int GetSourceLineNumber() const;
    virtual void SetSourceLineNumber(int line);
    /// The message in UTF-8; valid until it is asked for again.
    virtual const char* GetMessageText();
    /// The whole message for the user: request, diagnostic and advice, each as the catalog gives it with the
    /// parameters set in; the message id where the catalog has nothing. In the language that is set when it is asked
    /// for, not when the error was raised.
    virtual ZFXUnicodeString GetNLSMessage();
    virtual ZFXUnicodeString GetNLSRequest();
    virtual ZFXUnicodeString GetNLSDiagnostic();
    virtual ZFXUnicodeString GetNLSAdvice();
    virtual ZFXUnicodeString GetNLSSource();
    virtual ZFXUnicodeString GetNLSHelpFile();
    virtual int GetNLSHelpContext();
    /// Writes the message on standard error.
    virtual void Display();
    /// Writes the class, the ids and the source position.
    virtual void PrintHistory(std::ostream& out) const;
    /// Throws a reference to this error, for a host that reports that way.
    [[noreturn]] virtual void Throw(const char* sourceFile, int sourceLine);
    /// `count` addresses of strings follow or start with `first`; they are copied. They replace "/P1" to
    /// "/P9" in all three texts, or in the one that the name tells.
    virtual void SetNLSParameters(int count, ZFXUnicodeString* first, ...);
    virtual void SetNLSRequestParams(int count, ZFXUnicodeString* first, ...);
    virtual void SetNLSDiagnosticParams(int count, ZFXUnicodeString* first, ...);
    virtual void SetNLSAdviceParams(int count, ZFXUnicodeString* first, ...);
    virtual void SetSourceContext(const ZFXUnicodeString& context);
    virtual ZFXUnicodeString GetSourceContext() const;
    /// What SetReturnCode was given; 0 before that.
    virtual HRESULT GetReturnCode() const;
    virtual void SetReturnCode(HRESULT code);
    virtual int GetInformationOnErrorType() const;
    virtual void SetInformationOnErrorType(ZFXErrorType type);

    /// The diagnostic's parameters, in order. [borrowed]
    const std::vector<ZFXUnicodeString>& DiagnosticParameters() const noexcept { return m_parameters[Diagnostic]; }
    /// The code that GetReturn gave for this error; 0 before that.
    HRESULT RegisteredCode() const noexcept { return m_registeredCode; }

protected:
    void CopyContentOf(const ZFXError& other);

private:
    enum Section { Request, Diagnostic, Advice, SectionCount };
    ZFXUnicodeString Text(Section section) const;

    std::string m_msgId;
    std::string m_catalog;
    std::string m_sourceFile;
    int m_sourceLine = 0;
    ZFXUnicodeString m_sourceContext;
    ZFXUnicodeString m_messageText;
    std::vector<ZFXUnicodeString> m_parameters[SectionCount];
    HRESULT m_returnCode = 0;
    HRESULT m_registeredCode = 0;
    int m_type = 0;
};

/// An error in what a user gave.
class ZFX_PLATFORM_EXPORT ZFXInputError : public ZFXError {
public:
    ZFXInputError(const char* msgId, const char* catalog);
    ~ZFXInputError() override;

    static ZFXMetaClass* MetaObject();
    ZFXMetaClass* GetMetaObject() const override;
    /// A new error of the same content, not registered. [new reference]
    virtual ZFXError* CloneSelf() const;
    virtual const ZFXErrorTable* GetErrorTable() const;
};
