#include "ExitCode.h"
#include "commands/Commands.h"
#include "commands/NameChecks.h"
#include "document/FeaturePaths.h"
#include "files/FileErrors.h"
#include "files/WholeFile.h"
#include "terminal/DisplayWidth.h"

#include <nlohmann/json.hpp>

#include <iostream>
#include <sstream>

namespace {

/// Keeps what is written on standard output, for as long as it lives.
class CapturedOutput {
public:
    CapturedOutput() : m_former(std::cout.rdbuf(m_text.rdbuf())) {}
    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;
    ~CapturedOutput() { std::cout.rdbuf(m_former); }

    std::string Text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
    std::streambuf* m_former;
};

struct Outcome {
    std::string former;
    std::string now;
    std::string printed; ///< what the naming module wrote on standard output
    bool isRefused = false;
    Verdict verdict; ///< on the name that was asked for
};

/// What a guard says to this name: it judges with the name stored, for which an empty one stands.
Verdict CheckAsStored(const ZFXISpecObject_var& feature, const ZFXUnicodeString& name) {
    const ZFXISpecAttrAccess_var attributes(feature);
    if (attributes == nullptr)
        return CheckFeatureName(feature, name);
    const auto key = ZFXISpecAttrKey_var::TakeOver(attributes->GetAttrKey("Alias"));
    const ZFXUnicodeString former = attributes->GetString(key, 0);
    attributes->SetString(key, name, 0);
    Verdict verdict = CheckFeatureName(feature, name);
    attributes->SetString(key, former, 0);
    return verdict;
}

/// Asks the feature for the change as a workbench does. It answers nothing, so the name is read again: it is
/// the former one although another was asked for, or a refusal was printed, when the change was refused.
Outcome ApplyName(const ZFXISpecObject_var& feature, const ZFXUnicodeString& name) {
    Outcome outcome;
    const ZFXUnicodeString trimmed = TrimmedName(name);
    const ZFXIAlias_var alias(feature);
    if (alias == nullptr) {
        outcome.isRefused = true;
        outcome.verdict = {E_NOINTERFACE, {}, "The feature cannot be named: it offers no ZFXIAlias."};
        return outcome;
    }
    const ZFXUnicodeString former = alias->GetAlias();
    {
        const CapturedOutput output;
        alias->SetAlias(name);
        outcome.printed = output.Text();
    }
    const ZFXUnicodeString now = alias->GetAlias();
    outcome.isRefused = now == former && (!outcome.printed.empty() || (former != trimmed && former != name));
    outcome.verdict = CheckAsStored(feature, outcome.isRefused ? trimmed : now);
    outcome.former = former.ConvertToChar();
    outcome.now = now.ConvertToChar();
    return outcome;
}

std::string Quoted(const std::string& name) { return "\"" + Printable(name) + "\""; }

void Print(const std::string& feature, const RenameRequest& request, const Outcome& outcome, Console console) {
    std::ostream& out = console.out;
    out << outcome.printed << Printable(feature) << ": ";
    if (outcome.isRefused) {
        const Verdict& why = outcome.verdict;
        const std::string id = Styled(why.messageId, Style::Refusal, console.screen);
        out << "refused" << (why.messageId.empty() ? "" : " (" + id + ")") << ", the name stays "
            << Quoted(outcome.former) << '\n';
        if (outcome.printed.empty())
            out << "  " << Printable(why.message) << '\n';
        return;
    }
    out << Quoted(outcome.former) << " -> " << Quoted(outcome.now);
    out << (outcome.now != request.name ? " (blanks and underscores at the ends dropped)\n" : "\n");
    if (outcome.verdict.IsRefusal())
        out << "  taken although an audit refuses it, since this type of feature guards no names: "
            << outcome.verdict.messageId << "  " << Printable(outcome.verdict.message) << '\n';
}

void PrintAsJson(const std::string& feature, const RenameRequest& request, const Outcome& outcome, Console console) {
    nlohmann::ordered_json said{{"feature", feature},
                                {"renamed", !outcome.isRefused},
                                {"former", outcome.former},
                                {"requested", request.name},
                                {"name", outcome.now},
                                {"printed", outcome.printed},
                                {"legal", !outcome.verdict.IsRefusal()}};
    if (outcome.verdict.IsRefusal()) {
        said["messageId"] = outcome.verdict.messageId;
        said["message"] = outcome.verdict.message;
    }
    PrintJson(console.out, said);
}

/// The document with the new name, where it was asked for.
void WriteDocument(const std::string& bytes, const RenameRequest& request, const std::string& target, Console console) {
    if (target != kStandardStream) {
        ReplaceWholeFile(target, bytes, request.document);
        return;
    }
    if (!console.out.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush())
        throw BadInput("the document cannot be written on standard output");
}

} // namespace

int RenameFeature(const RenameRequest& request, Console console) {
    const ZFXUnicodeString name = ToUnicode(request.name);
    const auto loaded = OpenDocument(request.document);
    const std::uint32_t entry = FindFeature(*loaded, request.document, request.feature);
    const std::string feature = DisplayPath(*loaded, entry);
    const Outcome outcome = ApplyName(loaded->entries[entry].feature, name);
    const std::string& target = request.output.empty() ? request.document : request.output;
    // The file is written before anything is told, so that nothing is told that did not happen.
    const bool isOther = outcome.now != outcome.former || !request.output.empty() || target == kStandardStream;
    const bool isToWrite = !outcome.isRefused && isOther;
    if (isToWrite)
        WriteDocument(TextWithName(*loaded, entry, outcome.now), request, target, console);
    // A document on standard output stands there alone.
    const Console messages =
        target == kStandardStream ? Console{console.err, console.err, {}, console.isJson} : console;
    (console.isJson ? PrintAsJson : Print)(feature, request, outcome, messages);
    return outcome.isRefused ? kRefused : kSuccess;
}
