#include "commands/Commands.h"

#include "ExitCode.h"
#include "document/FeaturePaths.h"
#include "files/FileErrors.h"
#include "files/WholeFile.h"

#include <nlohmann/json.hpp>

#include <ostream>

std::unique_ptr<LoadedDocument> OpenDocument(const std::string& file) {
    std::string bytes = ReadWholeFile(file);
    try {
        return std::make_unique<LoadedDocument>(std::move(bytes));
    } catch (const BadInput& error) {
        throw BadInput(DisplayFileName(file) + ": " + error.what());
    }
}

std::uint32_t FindFeature(const LoadedDocument& loaded, const std::string& file, const std::string& reference) {
    try {
        const std::uint32_t entry = FindEntry(loaded, reference);
        if (entry == 0)
            throw BadInput("\"" + reference + "\" is the analysis model, which has no name in the file");
        return entry;
    } catch (const BadInput& error) {
        throw BadInput(DisplayFileName(file) + ": " + error.what());
    }
}

ZFXUnicodeString ToUnicode(const std::string& argument) {
    ZFXUnicodeString text(argument.c_str());
    if (text.ConvertToChar() != argument) // what is no UTF-8 was read as U+FFFD
        throw BadInput("an argument is no UTF-8 text: " + std::string(text.ConvertToChar()));
    return text;
}

void PrintJson(std::ostream& out, const nlohmann::ordered_json& value) { out << value.dump(2) << '\n'; }
