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

/// Redirects std::cout to a buffer. The destructor restores it.
class CapturedOutput {
public:
    CapturedOutput() : m_oldBuffer(std::cout.rdbuf(m_text.rdbuf())) {}
    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;
    ~CapturedOutput() { std::cout.rdbuf(m_oldBuffer); }

    std::string Text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
    std::streambuf* m_oldBuffer;
};

struct Outcome {
    std::string oldName;
    std::string newName; ///< the stored name: `oldName` if the renaming was refused
    std::string printed; ///< output of the naming module on standard output
    bool isRefused = false;
    Verdict verdict; ///< on the requested name
};

/// Checks the name as the alias extension does: stores it first, because the check reads an empty name as the stored
/// name. Restores the old name afterwards.
Verdict CheckAsStored(const ZFXISpecObject_var& feature, const ZFXUnicodeString& name) {
    const ZFXISpecAttrAccess_var attributes(feature);
    if (attributes == nullptr)
        return CheckFeatureName(feature, name);
    const auto key = ZFXISpecAttrKey_var::Attach(attributes->GetAttrKey("Alias"));
    const ZFXUnicodeString oldName = attributes->GetString(key, 0);
    attributes->SetString(key, name, 0);
    Verdict verdict = CheckFeatureName(feature, name);
    attributes->SetString(key, oldName, 0);
    return verdict;
}

/// Renames the feature through its interface ZFXIAlias, as a workbench does. SetAlias returns no result, so the
/// renaming counts as refused if the name is unchanged and either a message was printed or another name was requested.
Outcome ApplyName(const ZFXISpecObject_var& feature, const ZFXUnicodeString& name) {
    Outcome outcome;
    const ZFXUnicodeString trimmed = TrimmedName(name);
    const ZFXIAlias_var alias(feature);
    if (alias == nullptr) {
        outcome.isRefused = true;
        outcome.verdict = {
            E_NOINTERFACE, {}, "The feature cannot have a name: it does not offer the interface ZFXIAlias."};
        return outcome;
    }
    const ZFXUnicodeString oldName = alias->GetAlias();
    {
        const CapturedOutput output;
        alias->SetAlias(name);
        outcome.printed = output.Text();
    }
    const ZFXUnicodeString newName = alias->GetAlias();
    outcome.isRefused = newName == oldName && (!outcome.printed.empty() || (oldName != trimmed && oldName != name));
    outcome.verdict = CheckAsStored(feature, outcome.isRefused ? trimmed : newName);
    outcome.oldName = oldName.ConvertToChar();
    outcome.newName = newName.ConvertToChar();
    return outcome;
}

std::string Quoted(const std::string& name) { return "\"" + Printable(name) + "\""; }

void Print(const std::string& feature, const RenameRequest& request, const Outcome& outcome, Console console) {
    std::ostream& out = console.out;
    out << outcome.printed << Printable(feature) << ": ";
    if (outcome.isRefused) {
        const Verdict& verdict = outcome.verdict;
        const std::string id = Styled(verdict.messageId, Style::Refusal, console.screen);
        out << "refused" << (verdict.messageId.empty() ? "" : " (" + id + ")") << "; the name is still "
            << Quoted(outcome.oldName) << '\n';
        if (outcome.printed.empty())
            out << "  " << Printable(verdict.message) << '\n';
        return;
    }
    out << Quoted(outcome.oldName) << " -> " << Quoted(outcome.newName);
    out << (outcome.newName != request.name ? " (without spaces and underscores at its ends)\n" : "\n");
    if (outcome.verdict.IsRefusal())
        out << "  stored, because features of this type accept any name; an audit refuses it: "
            << outcome.verdict.messageId << "  " << Printable(outcome.verdict.message) << '\n';
}

void PrintAsJson(const std::string& feature, const RenameRequest& request, const Outcome& outcome, Console console) {
    nlohmann::ordered_json json{{"feature", feature},
                                {"renamed", !outcome.isRefused},
                                {"former", outcome.oldName},
                                {"requested", request.name},
                                {"name", outcome.newName},
                                {"printed", outcome.printed},
                                {"legal", !outcome.verdict.IsRefusal()}};
    if (outcome.verdict.IsRefusal()) {
        json["messageId"] = outcome.verdict.messageId;
        json["message"] = outcome.verdict.message;
    }
    PrintJson(console.out, json);
}

/// Writes the changed document to the file or to standard output.
void WriteDocument(const std::string& bytes, const RenameRequest& request, const std::string& target, Console console) {
    if (target != kStandardStream) {
        ReplaceWholeFile(target, bytes, request.document);
        return;
    }
    if (!console.out.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush())
        throw BadInput("the document cannot be written to standard output");
}

} // namespace

int RenameFeature(const RenameRequest& request, Console console) {
    const ZFXUnicodeString name = ToUnicode(request.name);
    const auto loaded = OpenDocument(request.document);
    const std::uint32_t entry = FindFeature(*loaded, request.document, request.feature);
    const std::string feature = DisplayPath(*loaded, entry);
    const Outcome outcome = ApplyName(loaded->entries[entry].feature, name);
    const std::string& target = request.output.empty() ? request.document : request.output;
    // The file is written before the result is printed, so that a renaming that cannot be written is not reported.
    const bool needsOutput = outcome.newName != outcome.oldName || !request.output.empty() || target == kStandardStream;
    const bool mustWrite = !outcome.isRefused && needsOutput;
    if (mustWrite)
        WriteDocument(TextWithName(*loaded, entry, outcome.newName), request, target, console);
    // Standard output contains either the document or the messages.
    const Console messages =
        target == kStandardStream ? Console{console.err, console.err, {}, console.isJson} : console;
    (console.isJson ? PrintAsJson : Print)(feature, request, outcome, messages);
    return outcome.isRefused ? kRefused : kSuccess;
}
