#include "errors/ZFXError.h"

#include "errors/MessageCatalog.h"
#include "object-model/ZFXMetaClass.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cassert>
#include <cstdarg>
#include <functional>
#include <iostream>
#include <optional>
#include <string_view>
#include <utility>

namespace {

/// The last kRegistered errors of one thread, in a ring: a new error replaces the oldest.
class Registry {
public:
    Registry() = default;
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;
    ~Registry() {
        Clear();
        hasEnded = true;
    }

    /// True once the registry of this thread is destroyed. Objects that outlive it can still raise errors.
    static thread_local bool hasEnded;

    void Add(ZFXError* error) {
        assert(error != nullptr);
        m_latest = (m_latest + 1) % m_errors.size();
        Replace(m_errors[m_latest], error);
    }
    void Clear() {
        for (ZFXError*& slot : m_errors)
            Replace(slot, nullptr);
    }
    ZFXError* Latest() const noexcept { return m_errors[m_latest]; }
    long Size() const noexcept {
        return static_cast<long>(
            std::count_if(m_errors.begin(), m_errors.end(), [](ZFXError* error) { return error != nullptr; }));
    }
    ZFXError* Find(HRESULT code) const noexcept {
        for (ZFXError* error : m_errors)
            if (error != nullptr && error->RegisteredCode() == code)
                return error;
        return nullptr;
    }

private:
    static void Replace(ZFXError*& slot, ZFXError* error) {
        if (ZFXError* former = std::exchange(slot, error))
            former->Release();
    }

    std::array<ZFXError*, ZFXError::kRegistered> m_errors{};
    std::size_t m_latest = 0;
};

thread_local bool Registry::hasEnded = false;

/// Returns the registry of this thread, or null once it is destroyed.
Registry* ThreadRegistry() {
    if (Registry::hasEnded)
        return nullptr;
    thread_local Registry registry;
    return &registry;
}

/// Returns a code that no other error of the process has: the code of another thread's error finds nothing here.
HRESULT NextCode() noexcept {
    static std::atomic<std::uint32_t> number{0};
    // With failure bit and customer bit, it differs from all codes that a system defines, including E_FAIL.
    return static_cast<HRESULT>(0xA0000000U | (number.fetch_add(1, std::memory_order_relaxed) % 0x0FFFFFFFU + 1));
}

const char* OrEmpty(const char* text) noexcept { return text == nullptr ? "" : text; }

/// Returns copies of `count` strings: `first` and then those in `rest`. Null gives an empty string.
std::vector<ZFXUnicodeString> Collect(int count, ZFXUnicodeString* first, va_list rest) {
    assert(count >= 0 && "ZFXError::SetNLSParameters: the count is negative");
    std::vector<ZFXUnicodeString> parameters;
    for (int i = 0; i < count; ++i) {
        const ZFXUnicodeString* parameter = i == 0 ? first : va_arg(rest, ZFXUnicodeString*);
        parameters.push_back(parameter == nullptr ? ZFXUnicodeString() : *parameter);
    }
    return parameters;
}

/// Returns the number of the placeholder at the start of `text`, from "/P1" to "/P9", or 0 if there is none.
std::size_t PlaceholderNumber(std::u16string_view text) noexcept {
    const bool isPlaceholder =
        text.size() > 2 && text[0] == u'/' && text[1] == u'P' && text[2] >= u'1' && text[2] <= u'9';
    return isPlaceholder ? static_cast<std::size_t>(text[2] - u'0') : 0;
}

/// Replaces placeholders by their parameters in one pass, so that a parameter can contain "/P1". A placeholder without
/// a parameter stays.
ZFXUnicodeString Substitute(std::u16string_view text, const std::vector<ZFXUnicodeString>& parameters) {
    std::u16string result;
    while (!text.empty()) {
        const std::size_t number = PlaceholderNumber(text);
        const bool isKnown = number > 0 && number <= parameters.size();
        result.append(isKnown ? parameters[number - 1].Units() : text.substr(0, 1));
        text.remove_prefix(isKnown ? 3 : 1);
    }
    return ZFXUnicodeString(result);
}

constexpr ZFXErrorTable kErrorTable{"ZFXError", nullptr};
constexpr ZFXErrorTable kInputErrorTable{"ZFXInputError", &kErrorTable};

} // namespace

ZFXError::ZFXError(const char* msgId, const char* catalog) : m_msgId(OrEmpty(msgId)), m_catalog(OrEmpty(catalog)) {}

ZFXError::~ZFXError() = default;

ZFXMetaClass* ZFXError::MetaObject() {
    static ZFXMetaClass* const metaObject = fct_RetrieveMetaObject(
        "ZFXError", ENUMTypeOfClass::Implementation, ZFXBaseUnknown::MetaObject(), nullptr, "ZFXPlatform", 0);
    return metaObject;
}

ZFXMetaClass* ZFXError::GetMetaObject() const { return MetaObject(); }

HRESULT ZFXError::GetReturn(int type, ZFXError* error, ZFXBaseUnknown* /*object*/, const char* sourceFile,
                            int sourceLine) {
    if (error == nullptr)
        return type == ZFXErrorTypeSuccess ? S_OK : E_FAIL;
    Registry* registry = ThreadRegistry();
    if (registry == nullptr) {
        error->Release();
        return E_FAIL;
    }
    error->SetSourceFileName(sourceFile);
    error->SetSourceLineNumber(sourceLine);
    error->m_registeredCode = NextCode();
    registry->Add(error);
    return error->m_registeredCode;
}

ZFXError* ZFXError::ZFXGetLastError(HRESULT code, ZFXBaseUnknown* /*object*/) {
    const Registry* registry = ThreadRegistry();
    return registry == nullptr ? nullptr : registry->Find(code);
}

ZFXError* ZFXError::Latest() {
    const Registry* registry = ThreadRegistry();
    return registry == nullptr ? nullptr : registry->Latest();
}

void ZFXError::ReleaseRegistered() {
    if (Registry* registry = ThreadRegistry())
        registry->Clear();
}

long ZFXError::LiveObjects() {
    const Registry* registry = ThreadRegistry();
    return LiveAllocations() - (registry == nullptr ? 0 : registry->Size());
}

int ZFXError::GetId() const { return m_registeredCode; }
const char* ZFXError::GetMsgId() const { return m_msgId.c_str(); }
const char* ZFXError::GetMsgCatalog() const { return m_catalog.c_str(); }
const char* ZFXError::GetSourceFileName() const { return m_sourceFile.c_str(); }
void ZFXError::SetSourceFileName(const char* file) { m_sourceFile = OrEmpty(file); }
int ZFXError::GetSourceLineNumber() const { return m_sourceLine; }
void ZFXError::SetSourceLineNumber(int line) { m_sourceLine = line; }

const char* ZFXError::GetMessageText() {
    m_messageText = GetNLSMessage();
    return m_messageText.ConvertToChar();
}

ZFXUnicodeString ZFXError::Text(Section section) const {
    static constexpr const char* kKeys[] = {".Request", ".Diagnostic", ".Advice"};
    const auto text = MessageCatalog::Find(m_catalog, m_msgId + kKeys[section]);
    return text ? Substitute(text->Units(), m_parameters[section]) : ZFXUnicodeString();
}

ZFXUnicodeString ZFXError::GetNLSMessage() {
    ZFXUnicodeString message;
    for (const ZFXUnicodeString& text : {GetNLSRequest(), GetNLSDiagnostic(), GetNLSAdvice()}) {
        if (text.IsNull())
            continue;
        if (!message.IsNull())
            message.Append(" ");
        message.Append(text);
    }
    return message.IsNull() ? ZFXUnicodeString(m_msgId.c_str()) : message;
}

ZFXUnicodeString ZFXError::GetNLSRequest() { return Text(Request); }
ZFXUnicodeString ZFXError::GetNLSDiagnostic() { return Text(Diagnostic); }
ZFXUnicodeString ZFXError::GetNLSAdvice() { return Text(Advice); }
ZFXUnicodeString ZFXError::GetNLSSource() {
    return ZFXUnicodeString((m_sourceFile + ":" + std::to_string(m_sourceLine)).c_str());
}
ZFXUnicodeString ZFXError::GetNLSHelpFile() { return {}; }
int ZFXError::GetNLSHelpContext() { return 0; }

void ZFXError::Display() { std::cerr << GetMessageText() << std::endl; }

void ZFXError::PrintHistory(std::ostream& out) const {
    out << IsA() << " " << m_catalog << "." << m_msgId << " raised at " << m_sourceFile << ":" << m_sourceLine
        << std::endl;
}

void ZFXError::Throw(const char* sourceFile, int sourceLine) {
    SetSourceFileName(sourceFile);
    SetSourceLineNumber(sourceLine);
    throw std::ref(*this);
}

void ZFXError::SetNLSParameters(int count, ZFXUnicodeString* first, ...) {
    va_list rest;
    va_start(rest, first);
    m_parameters[Request] = m_parameters[Diagnostic] = m_parameters[Advice] = Collect(count, first, rest);
    va_end(rest);
}

void ZFXError::SetNLSRequestParams(int count, ZFXUnicodeString* first, ...) {
    va_list rest;
    va_start(rest, first);
    m_parameters[Request] = Collect(count, first, rest);
    va_end(rest);
}

void ZFXError::SetNLSDiagnosticParams(int count, ZFXUnicodeString* first, ...) {
    va_list rest;
    va_start(rest, first);
    m_parameters[Diagnostic] = Collect(count, first, rest);
    va_end(rest);
}

void ZFXError::SetNLSAdviceParams(int count, ZFXUnicodeString* first, ...) {
    va_list rest;
    va_start(rest, first);
    m_parameters[Advice] = Collect(count, first, rest);
    va_end(rest);
}

void ZFXError::SetSourceContext(const ZFXUnicodeString& context) { m_sourceContext = context; }
ZFXUnicodeString ZFXError::GetSourceContext() const { return m_sourceContext; }
HRESULT ZFXError::GetReturnCode() const { return m_returnCode; }
void ZFXError::SetReturnCode(HRESULT code) { m_returnCode = code; }
int ZFXError::GetInformationOnErrorType() const { return m_type; }
void ZFXError::SetInformationOnErrorType(ZFXErrorType type) { m_type = type; }

void ZFXError::CopyContentOf(const ZFXError& other) {
    m_sourceFile = other.m_sourceFile;
    m_sourceLine = other.m_sourceLine;
    m_sourceContext = other.m_sourceContext;
    for (int section = 0; section < SectionCount; ++section)
        m_parameters[section] = other.m_parameters[section];
    m_returnCode = other.m_returnCode;
    m_type = other.m_type;
}

ZFXInputError::ZFXInputError(const char* msgId, const char* catalog) : ZFXError(msgId, catalog) {}

ZFXInputError::~ZFXInputError() = default;

ZFXMetaClass* ZFXInputError::MetaObject() {
    static ZFXMetaClass* const metaObject = fct_RetrieveMetaObject("ZFXInputError", ENUMTypeOfClass::Implementation,
                                                                   ZFXError::MetaObject(), nullptr, "ZFXPlatform", 0);
    return metaObject;
}

ZFXMetaClass* ZFXInputError::GetMetaObject() const { return MetaObject(); }

ZFXError* ZFXInputError::CloneSelf() const {
    auto* clone = new ZFXInputError(GetMsgId(), GetMsgCatalog());
    if (clone != nullptr)
        clone->CopyContentOf(*this);
    return clone;
}

const ZFXErrorTable* ZFXInputError::GetErrorTable() const { return &kInputErrorTable; }
