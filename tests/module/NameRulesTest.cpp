#include "internal/NameRules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <string_view>

namespace {

using Path = std::filesystem::path;

/// Returns the character that the item stands for: texts list a character by itself or by its name.
std::string Character(const std::string& item) {
    if (item == "double quote" || item == "Double quote")
        return "\"";
    if (item == "full stop")
        return ".";
    return item == "backslash" ? "\\" : item;
}

/// Compares the characters that a part of a file lists with `expected`. The parts end with `end`; the part is the first
/// that contains `mark`. What it lists is the first group of each match of `item`. Spaces do not count.
void ExpectListed(const Path& file, const std::string& end, const std::string& mark, const std::string& item,
                  std::u16string_view expected) {
    std::ifstream in(file, std::ios::binary);
    std::string text(std::istreambuf_iterator<char>(in), {});
    std::erase(text, '\r');
    const std::size_t marked = std::min(text.find(mark), text.size());
    const std::size_t before = text.substr(0, marked).rfind(end);
    const std::size_t begin = before == std::string::npos ? 0 : before + end.size();
    const std::string part = text.substr(begin, text.find(end, marked) - begin) + "\n";
    const std::regex items(item);
    std::string listed;
    std::size_t place = marked;
    for (std::sregex_iterator match(part.begin(), part.end(), items), none; match != none; ++match) {
        if (listed.empty())
            place = begin + static_cast<std::size_t>(match->position(1));
        listed += Character((*match)[1]);
    }
    const std::string above = text.substr(0, place);
    const int line = 1 + static_cast<int>(std::count(above.begin(), above.end(), '\n'));
    for (const char16_t c : expected)
        if (listed.find(static_cast<char>(c)) == std::string::npos)
            ADD_FAILURE_AT(file.string().c_str(), line) << mark << ": missing: " << static_cast<char>(c);
    for (const char c : listed)
        if (c != ' ' && expected.find(static_cast<unsigned char>(c)) == std::u16string_view::npos)
            ADD_FAILURE_AT(file.string().c_str(), line) << mark << ": not in the table: " << c;
}

TEST(NameRules, TextsListTheCharactersOfTheTable) {
    using namespace NameRules;
    const Path sources(SOURCE_ROOT);
    if (!exists(sources))
        GTEST_SKIP() << "the sources are not on this machine";

    int catalogs = 0;
    const Path module = sources / "QVRGeneralUtilities";
    for (const auto& catalog : std::filesystem::directory_iterator(module / "resources/msgcatalog")) {
        ExpectListed(catalog, "\n", "IllegalCharERR_01.Diagnostic", R"(\((.)\))", NameReservedChars);
        ExpectListed(catalog, "\n", "IllegalCharERR_02.Diagnostic", R"( ((?:\S ){6,}\S))", IllegalChars);
        ++catalogs;
    }
    EXPECT_EQ(catalogs, 4);

    // Ten or more marks without a space between them; the code marks and the punctuation around them do not count.
    const char* const joined = R"((?:``)?([!-/:-@\[-`{-~]{10,}?)(?:``)?[:.]?(?=\s))";
    const Path header = module / "public-headers/QVRNameUtil.h";
    for (const char* operation :
         {" IsFileNameValid(", " CheckForIllegalCharacters(", " StripIllegalCharsFromFileName("})
        ExpectListed(header, ";\n", operation, joined, IllegalChars);
    for (const char* operation : {" IsNameValid(", " IsFileNameValid(", " StripIllegalCharsFromFileName("})
        ExpectListed(header, ";\n", operation, "([Dd]ouble quote|full stop|backslash)", NameReservedChars);

    const Path page = sources / "docs/operations.md";
    const char* const marked = R"([^`]`([^`\s])`[^`])";
    for (const char* operation : {"### `IsFileNameValid(", "### `CheckForIllegalCharacters("})
        ExpectListed(page, "\n\n", operation, joined, IllegalChars);
    ExpectListed(page, "\n\n", "### `IsNameValid(", marked, NameReservedChars);
    ExpectListed(page, "\n\n", "### `IsFileNameValid(", marked, NameReservedChars.substr(0, 2));

    const Path reference = sources / "fuzz/ReferenceRules.cpp";
    ExpectListed(reference, "\n", "kReserved = ", R"x(R"\((.*)\)")x", NameReservedChars);
    ExpectListed(reference, "\n", "kIllegal = ", R"x(R"\((.*)\)")x", IllegalChars);
}

} // namespace
