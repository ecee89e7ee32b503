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
    /// The class. [borrowed]
    const char* errorClass;
    /// The one it derives from, null for none. [borrowed]
    const ZFXErrorTable* base;
};

/// A failure that a user must understand: a message id in a message catalog, its parameters, where it was
/// raised, and the code under which the platform registered it.
class ZFX_PLATFORM_EXPORT ZFXError : public ZFXBaseUnknown {
public:
    /// Both texts are copied; null counts as empty.
    ZFXError(const char* msgId, const char* catalog);
    ~ZFXError() override;

    /// The meta class. [borrowed]
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
    /// How many errors of a thread are kept.
    static constexpr int kRegistered = 32;

    /// The code that GetReturn gave; 0 before that.
    virtual int GetId() const;
    /// The message id. [borrowed]
    virtual const char* GetMsgId() const;
    /// The catalog's name. [borrowed]
    virtual const char* GetMsgCatalog() const;
    /// Where it was raised; empty before that. [borrowed]
    virtual const char* GetSourceFileName() const;
    /// Copied; null counts as empty.
    virtual void SetSourceFileName(const char* file);
    /// 0 before it was raised.
    virtual int GetSourceLineNumber() const;
    /// Counted from 1.
    virtual void SetSourceLineNumber(int line);
    /// The message in UTF-8; valid until it is asked for again.
    virtual const char* GetMessageText();
    /// The whole message for the user: request, diagnostic and advice, each as the catalog gives it with the
    /// parameters set in; the message id where the catalog has nothing. In the language that is set when it is asked
    /// for, not when the error was raised.
    virtual ZFXUnicodeString GetNLSMessage();
    /// What was asked for; empty where the catalog has nothing.
    virtual ZFXUnicodeString GetNLSRequest();
    /// What is wrong; empty likewise.
    virtual ZFXUnicodeString GetNLSDiagnostic();
    /// What to do; empty likewise.
    virtual ZFXUnicodeString GetNLSAdvice();
    /// Source file and line, with a colon between them.
    virtual ZFXUnicodeString GetNLSSource();
    /// Empty: there is no help file.
    virtual ZFXUnicodeString GetNLSHelpFile();
    /// 0: there is no help file.
    virtual int GetNLSHelpContext();
    /// Writes the message on standard error.
    virtual void Display();
    /// Writes the class, the ids and the source position.
    virtual void PrintHistory(std::ostream& out) const;
    /// Throws a reference to this error, for a host that reports that way.
    [[noreturn]] virtual void Throw(const char* sourceFile, int sourceLine);
    /// Sets the parameters that replace "/P1" to "/P9" in the request, the diagnostic and the advice. A placeholder
    /// inside a parameter is not replaced.
    /// `count` is the number of addresses, beginning with `first`. The strings are copied; null counts as empty.
    virtual void SetNLSParameters(int count, ZFXUnicodeString* first, ...);
    /// Sets the parameters of the request only.
    virtual void SetNLSRequestParams(int count, ZFXUnicodeString* first, ...);
    /// Sets the parameters of the diagnostic only.
    virtual void SetNLSDiagnosticParams(int count, ZFXUnicodeString* first, ...);
    /// Sets the parameters of the advice only.
    virtual void SetNLSAdviceParams(int count, ZFXUnicodeString* first, ...);
    /// For a host's own records.
    virtual void SetSourceContext(const ZFXUnicodeString& context);
    /// What SetSourceContext was given.
    virtual ZFXUnicodeString GetSourceContext() const;
    /// What SetReturnCode was given; 0 before that.
    virtual HRESULT GetReturnCode() const;
    /// A code for the caller beside the registered one, such as -100 of a refused name.
    virtual void SetReturnCode(HRESULT code);
    /// A ZFXErrorType; 0 before it is set.
    virtual int GetInformationOnErrorType() const;
    /// Tells what kind of report it is.
    virtual void SetInformationOnErrorType(ZFXErrorType type);

    /// The diagnostic's parameters, in order. [borrowed]
    const std::vector<ZFXUnicodeString>& DiagnosticParameters() const noexcept { return m_parameters[Diagnostic]; }
    /// The code that GetReturn gave for this error; 0 before that.
    HRESULT RegisteredCode() const noexcept { return m_registeredCode; }

protected:
    /// All but the ids and the registered code.
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
    /// As ZFXError.
    ZFXInputError(const char* msgId, const char* catalog);
    ~ZFXInputError() override;

    /// The meta class. [borrowed]
    static ZFXMetaClass* MetaObject();
    ZFXMetaClass* GetMetaObject() const override;
    /// A new error of the same content, not registered. [new reference]
    virtual ZFXError* CloneSelf() const;
    /// Its class, with the one it derives from. [borrowed]
    virtual const ZFXErrorTable* GetErrorTable() const;
};
