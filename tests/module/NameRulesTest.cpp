#include "internal/NameRules.h"

#include "support/Results.h"

#include <gtest/gtest.h>

namespace {

/// Expects that a file contains the list, and that each list that begins with its first three characters is complete.
void ExpectList(const std::filesystem::path& file, const std::string& list) {
    const std::string text = TextOf(file);
    const std::string begin = list.substr(0, 3);
    EXPECT_NE(text.find(begin), std::string::npos) << file << " does not contain " << list;
    for (std::size_t at = text.find(begin); at != std::string::npos; at = text.find(begin, at + 1))
        EXPECT_EQ(text.substr(at, list.size()), list) << file;
}

TEST(NameRules, TextsForPeopleListTheCharactersOfTheTables) {
    const std::filesystem::path sources(SOURCE_ROOT);
    const std::string reserved(NameRules::NameReservedChars.begin(), NameRules::NameReservedChars.end());
    const std::string illegal(NameRules::IllegalChars.begin(), NameRules::IllegalChars.end());
    std::string spaced;
    for (const char c : illegal)
        spaced += std::string(" ") + c;
    for (const auto& catalog :
         std::filesystem::directory_iterator(sources / "QVRGeneralUtilities/resources/msgcatalog")) {
        ExpectList(catalog, spaced);
        for (const char c : reserved)
            ExpectList(catalog, std::string("(") + c + ")");
    }
    for (const char* file :
         {"QVRGeneralUtilities/public-headers/QVRNameUtil.h", "docs/operations.md", "fuzz/ReferenceRules.cpp"})
        ExpectList(sources / file, illegal);
    ExpectList(sources / "fuzz/ReferenceRules.cpp", reserved);
}

} // namespace
