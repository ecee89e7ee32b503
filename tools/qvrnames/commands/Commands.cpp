#include "commands/Commands.h"

#include "document/FeaturePaths.h"
#include "files/FileErrors.h"
#include "files/Utf8Text.h"
#include "files/WholeFile.h"
#include "terminal/DisplayWidth.h"

#include <nlohmann/json.hpp>

#include <ostream>

std::unique_ptr<LoadedDocument> OpenDocument(const std::string& file) {
    std::string bytes = ReadWholeFile(file);
    try {
        return std::make_unique<LoadedDocument>(std::move(bytes));
    } catch (const BadInput& error) {
        ThrowBadInput(file, error.what());
    }
}

std::shared_ptr<void> LockDocument(const std::string& file, Console console) {
    return LockFile(file, [&] {
        console.err << "qvrnames: " << Printable(file) << ": locked by another process; waiting for it" << std::endl;
    });
}

EntryIndex FindFeature(const LoadedDocument& loaded, const std::string& file, const std::string& reference) {
    try {
        const EntryIndex entry = FindEntry(loaded, reference);
        if (entry == 0)
            throw BadInput("\"" + reference + "\" is the analysis model, which cannot have a name");
        return entry;
    } catch (const BadInput& error) {
        ThrowBadInput(file, error.what());
    }
}

void WriteDocument(const std::string& bytes, const std::string& target, const std::string& model, Console console) {
    if (target != kStandardStream)
        ReplaceWholeFile(target, bytes, model);
    else if (!console.out.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush())
        throw BadInput("the document cannot be written to standard output");
}

ZFXUnicodeString ToUnicode(const std::string& argument) {
    ZFXUnicodeString text(argument.c_str());
    if (!IsUtf8(argument)) // an ill-formed byte became U+FFFD
        throw BadInput("an argument is not UTF-8: " + std::string(text.ConvertToChar()));
    return text;
}

std::string ReasonOf(const LoadedDocument& loaded, const Verdict& verdict) {
    return Printable(verdict.message +
                     (verdict.other ? " The other feature is " + DisplayPath(loaded, *verdict.other) + "." : ""));
}

void AddVerdict(nlohmann::ordered_json& json, const LoadedDocument& loaded, const Verdict& verdict) {
    if (!verdict.isRefused)
        return;
    json["rule"] = verdict.rule;
    json["message"] = verdict.message;
    if (verdict.other)
        json["other"] = {{"feature", DisplayPath(loaded, *verdict.other)},
                         {"pointer", PointerOf(loaded, *verdict.other)}};
}

std::string Counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

void PrintJson(std::ostream& out, const nlohmann::ordered_json& value) { out << value.dump(2) << '\n'; }
