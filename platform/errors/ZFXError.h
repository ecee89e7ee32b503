#pragma once

#include "object-model/ZFXBaseUnknown.h"
#include "text/ZFXUnicodeString.h"

#include <iosfwd>
#include <string>
#include <vector>

/// The two kinds of report of this platform.
enum ZFXErrorType { ZFXErrorTypeSuccess = 1, ZFXErrorTypeInput = 2 };

/// The name of an error class, with its base class.
struct ZFXErrorTable {
    /// The class. [borrowed]
    const char* errorClass;
    /// The base class, or null. [borrowed]
    const ZFXErrorTable* base;
};

/// A failure with a message for the user: a message id and its catalog, the parameters of the message, the source
/// position that raised it, and the code under which it is registered.
///
/// Texts are looked up when they are requested, in the language that is set then (MessageCatalog::SetLanguage).
class ZFX_PLATFORM_EXPORT ZFXError : public ZFXBaseUnknown {
public:
    /// Creates an error with one reference, not registered. Both texts are copied; null counts as empty.
    ZFXError(const char* msgId, const char* catalog);
    ~ZFXError() override;

    /// Returns the meta class. [borrowed]
    static ZFXMetaClass* MetaObject();
    ZFXMetaClass* GetMetaObject() const override;

    /// Registers `error` for the calling thread and takes over the caller's reference. Returns the code to return to
    /// the caller: negative, not E_FAIL, and of no other error of the process.
    ///
    /// The registry keeps the last kRegistered errors of each thread and releases the oldest when a further error is
    /// registered. It releases all of them when the thread ends.
    ///
    /// Other results:
    /// - S_OK if `error` is null and `type` is ZFXErrorTypeSuccess;
    /// - E_FAIL if `error` is null and `type` is any other value;
    /// - E_FAIL if the registry of the thread is already destroyed; `error` is released.
    /// @param type        a ZFXErrorType; it only matters if `error` is null
    /// @param error       the error, or null
    /// @param object      for a host's own records; ignored
    /// @param sourceFile  the source file that raised the error; null counts as empty
    /// @param sourceLine  the line in it, from 1
    [[nodiscard]] static HRESULT GetReturn(int type, ZFXError* error, ZFXBaseUnknown* object, const char* sourceFile,
                                           int sourceLine);
    /// Returns the error that this thread registered under the code. Returns null if there is none, as for S_OK and
    /// E_FAIL. The error is valid until the next GetReturn or ReleaseRegistered of this thread. `object` is ignored.
    /// [borrowed]
    [[nodiscard]] static ZFXError* ZFXGetLastError(HRESULT code, ZFXBaseUnknown* object);
    /// Returns the error that this thread registered last, or null if there is none. After an operation that registers
    /// no error, this is the error of an earlier one. The error is valid until the next GetReturn or ReleaseRegistered
    /// of this thread. [borrowed]
    [[nodiscard]] static ZFXError* Latest();
    /// Releases all errors that this thread registered. Afterwards ZFXGetLastError returns null for their codes.
    static void ReleaseRegistered();
    /// Returns the number of platform objects that this thread has created with new and that still exist, without the
    /// registered errors. After a test has released all objects, the number is 0.
    [[nodiscard]] static long LiveObjects();
    /// The number of errors that the registry of a thread keeps.
    static constexpr int kRegistered = 32;

    /// Returns the code that GetReturn gave this error, or 0 if it is not registered.
    virtual int GetId() const;
    /// Returns the message id. [borrowed]
    virtual const char* GetMsgId() const;
    /// Returns the name of the catalog. [borrowed]
    virtual const char* GetMsgCatalog() const;
    /// Returns the source file that raised the error, or an empty text. [borrowed]
    virtual const char* GetSourceFileName() const;
    /// Sets the source file. The text is copied; null counts as empty.
    virtual void SetSourceFileName(const char* file);
    /// Returns the source line that raised the error, from 1, or 0 if it is not set.
    virtual int GetSourceLineNumber() const;
    /// Sets the source line, from 1.
    virtual void SetSourceLineNumber(int line);
    /// Returns GetNLSMessage as zero-terminated UTF-8, valid until the next call for this error. [borrowed]
    virtual const char* GetMessageText();
    /// Returns the message for the user: request, diagnostic and advice, separated by one space; those that the catalog
    /// lacks are omitted. Returns the message id if the catalog has none of them.
    virtual ZFXUnicodeString GetNLSMessage();
    /// Returns the text of the request: what the user wanted. Empty if the catalog has none.
    virtual ZFXUnicodeString GetNLSRequest();
    /// Returns the text of the diagnostic: what is wrong. Empty if the catalog has none.
    virtual ZFXUnicodeString GetNLSDiagnostic();
    /// Returns the text of the advice: what to do. Empty if the catalog has none.
    virtual ZFXUnicodeString GetNLSAdvice();
    /// Returns the source file and line, separated by a colon.
    virtual ZFXUnicodeString GetNLSSource();
    /// Returns an empty text: there is no help file.
    virtual ZFXUnicodeString GetNLSHelpFile();
    /// Returns 0: there is no help file.
    virtual int GetNLSHelpContext();
    /// Writes the message and a line feed to standard error.
    virtual void Display();
    /// Writes one line with the class, the catalog, the message id and the source position to `out`.
    virtual void PrintHistory(std::ostream& out) const;
    /// Sets the source position and throws a std::reference_wrapper of this error, for a host that reports errors by
    /// exceptions.
    [[noreturn]] virtual void Throw(const char* sourceFile, int sourceLine);
    /// Sets the parameters that replace "/P1" to "/P9" in the request, the diagnostic and the advice. A placeholder
    /// without a parameter stays; a placeholder inside a parameter is not replaced.
    /// `count` is the number of addresses that follow, beginning with `first`. The strings are copied; null counts as
    /// an empty string.
    virtual void SetNLSParameters(int count, ZFXUnicodeString* first, ...);
    /// Sets the parameters of the request only.
    virtual void SetNLSRequestParams(int count, ZFXUnicodeString* first, ...);
    /// Sets the parameters of the diagnostic only.
    virtual void SetNLSDiagnosticParams(int count, ZFXUnicodeString* first, ...);
    /// Sets the parameters of the advice only.
    virtual void SetNLSAdviceParams(int count, ZFXUnicodeString* first, ...);
    /// Sets a text for a host's own records.
    virtual void SetSourceContext(const ZFXUnicodeString& context);
    /// Returns the text that SetSourceContext has set, or an empty text.
    virtual ZFXUnicodeString GetSourceContext() const;
    /// Returns the code that SetReturnCode has set, or 0.
    virtual HRESULT GetReturnCode() const;
    /// Sets a code for the caller in addition to the registered one, such as -100 for a name with illegal characters.
    virtual void SetReturnCode(HRESULT code);
    /// Returns the kind of report that SetInformationOnErrorType has set, or 0.
    virtual int GetInformationOnErrorType() const;
    /// Sets the kind of report.
    virtual void SetInformationOnErrorType(ZFXErrorType type);

    /// Returns the parameters of the diagnostic, in order. [borrowed]
    const std::vector<ZFXUnicodeString>& DiagnosticParameters() const noexcept { return m_parameters[Diagnostic]; }
    /// Returns the code that GetReturn gave this error, or 0 if it is not registered.
    HRESULT RegisteredCode() const noexcept { return m_registeredCode; }

protected:
    /// Copies everything from `other` except the ids and the registered code.
    void CopyContentOf(const ZFXError& other);

private:
    enum Section { Request, Diagnostic, Advice, SectionCount };
    /// Returns the text of the section with its parameters, or an empty text if the catalog has none.
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

/// An error in the user's input.
class ZFX_PLATFORM_EXPORT ZFXInputError : public ZFXError {
public:
    /// Creates an error with one reference, not registered. Both texts are copied; null counts as empty.
    ZFXInputError(const char* msgId, const char* catalog);
    ~ZFXInputError() override;

    /// Returns the meta class. [borrowed]
    static ZFXMetaClass* MetaObject();
    ZFXMetaClass* GetMetaObject() const override;
    /// Returns a copy of this error that is not registered, or null if there is no memory. [new reference]
    [[nodiscard]] virtual ZFXError* CloneSelf() const;
    /// Returns the name of the class with its base class. [borrowed]
    virtual const ZFXErrorTable* GetErrorTable() const;
};
