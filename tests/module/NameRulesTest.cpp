#include "internal/NameRules.h"

#include "support/Results.h"

#include <gtest/gtest.h>

namespace {

int Count(const std::string& text, const std::string& part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

/// Expects that a file contains the list, and that each list that begins with its first three characters is complete.
void ExpectList(const std::filesystem::path& file, const std::string& list) {
    const std::string text = TextOf(file);
    EXPECT_GT(Count(text, list), 0) << file << " does not contain " << list;
    EXPECT_EQ(Count(text, list), Count(text, list.substr(0, 3))) << file << " has another list than " << list;
}

TEST(NameRules, TextsForPeopleListTheCharactersOfTheTables) {
    const std::filesystem::path sources(SOURCE_ROOT);
    const std::string reserved(NameRules::NameReservedChars.begin(), NameRules::NameReservedChars.end());
    const std::string illegal(NameRules::IllegalChars.begin(), NameRules::IllegalChars.end());
    std::string spaced;
    for (const char c : illegal)
        spaced += std::string(" ") + c;
    const auto header = sources / "QVRGeneralUtilities/public-headers/QVRNameUtil.h";
    const auto page = sources / "docs/operations.md";
    const auto reference = sources / "fuzz/ReferenceRules.cpp";
    for (const auto& catalog :
         std::filesystem::directory_iterator(sources / "QVRGeneralUtilities/resources/msgcatalog")) {
        ExpectList(catalog, spaced);
        for (const char c : reserved)
            ExpectList(catalog, std::string("(") + c + ")");
    }
    for (const auto& file : {header, page, reference})
        ExpectList(file, illegal);
    ExpectList(reference, reserved);
    ASSERT_EQ(reserved, R"(".\)"); // file names may contain the last one
    for (const char* list :
         {": the name contains a double quote, full stop or backslash.",
          ": the name contains a double quote or full stop.", "Keeps every double quote, full stop and backslash."})
        EXPECT_EQ(Count(TextOf(header), list), 1) << list;
    for (const char* list : {R"(no `"`, `.` or `\`,)", R"(no `"` or `.`,)"})
        EXPECT_EQ(Count(TextOf(page), list), 1) << list;
}

} // namespace
