#include "TestSupport.h"

#include <nlohmann/json.hpp>

namespace {

TEST(Import, KeepsEveryByteOfAName) {
    const std::pair<std::string, std::string> rows[] = {
        // the field, the name
        {"Pressure-1", "Pressure-1"},
        {"  a b\t", "  a b\t"},
        {"", ""},
        {"\"\"", ""},
        {R"("""")", "\""},
        {R"("5"" pipe, ""A""")", R"(5" pipe, "A")"},
        {"\"a\nb\r\n\nc\r\"", "a\nb\r\n\nc\r"},
        {"\\u0041 \x01\x7F", "\\u0041 \x01\x7F"},
        {"Schweißnaht 衝撃 \U0001F600 \uFFFD", "Schweißnaht 衝撃 \U0001F600 \uFFFD"},
    };
    const TestFolder folder;
    for (const std::string mark : {"", "\xEF\xBB\xBF"})
        for (const std::string end : {"\n", "\r\n"}) {
            std::string table = mark + "kind,name" + end + end + "," + end;
            for (const auto& [field, name] : rows)
                table += "material," + field + end;
            table.resize(table.size() - end.size()); // the last line may lack its end
            const std::string file = folder.Path("names.json");
            ASSERT_EQ(RunWith({"import", folder.Write("names.csv", table), "--output", file}).code, 0);
            const auto materials = nlohmann::json::parse(ReadFile(file)).at("materials");
            ASSERT_EQ(materials.size(), std::size(rows));
            for (std::size_t i = 0; i < std::size(rows); ++i)
                EXPECT_EQ(materials[i].at("name"), rows[i].second);
            EXPECT_EQ(RunWith({"audit", file}).err, "");
        }
}

TEST(Import, ReportsTheLineOfTheFirstError) {
    const std::string header = "case,step,set,type,name,kind\n";
    const std::pair<std::string, std::string> rows[] = {
        {"", "the table is empty; its first row must contain the names of the columns"},
        {"\nname,typ\n", "line 2: unknown column \"typ\"; did you mean \"type\"?"},
        {"name;type\n", "line 1: the columns must be separated by commas"},
        {"name,type,name\n", "line 1: duplicate column \"name\""},
        {"case,step\n", "line 1: the column \"name\" is missing in the header"},
        {"name,kind\nJob-1,jop\n", "line 2: unknown kind \"jop\"; did you mean \"job\"?"},
        {"name\nPressure-1\n", "line 2: a row of the kind \"feature\" needs a value in the column \"set\""},
        {header + "C,S,X,,n,\n", "line 2: a row of the kind \"feature\" needs a value in the column \"type\""},
        {header + ",S,X,T,n,\n", "line 2: a row of the kind \"feature\" needs a value in the column \"case\""},
        {header + "C,,,,n,step\n", "line 2: a row of the kind \"step\" needs a value in the column \"type\""},
        {header + ",,,,n,job\n", "line 2: a row of the kind \"job\" needs a value in the column \"case\""},
        {header + "C,,,,n,material\n",
         "line 2: a row of the kind \"material\" must not have a value in the column \"case\""},
        {header + ",,X,T,n,property\n",
         "line 2: a row of the kind \"property\" must not have a value in the column \"set\""},
        {"name,kind\n\"a\n\",material\nb\n", "line 4: the header has 2 fields, this row has 1"},
        {"name,kind\nb,material,\n", "line 2: the header has 2 fields, this row has 3"},
        {"name,kind\n\n\"a\n\"\"b,material\n", "line 3: the closing quote of a field is missing"},
        {"name,kind\n\"a\nb\"c,material\n",
         "line 3: text follows the closing quote of a field; write a quote in a field twice"},
        {"name,kind\n5\" pipe,material\n",
         "line 2: a field that contains a quote must be quoted, and the quote written twice"},
        {"name,kind\ra,material\n", "line 1: a field that contains a carriage return must be quoted"},
        {"name,kind\n\xFF,material\n", "line 2: the text is not UTF-8, or contains the character U+0000"},
        {std::string("name,kind\na\0b,material\n", 23),
         "line 2: the text is not UTF-8, or contains the character U+0000"},
    };
    const TestFolder folder;
    for (const auto& [table, expected] : rows) {
        const std::string file = folder.Write("names.csv", table);
        const RunResult result = RunWith({"import", file});
        EXPECT_EQ(result.code, 2) << expected;
        EXPECT_EQ(result.out, "") << expected;
        EXPECT_EQ(result.err, "qvrnames: " + file + ": " + expected + "\n");
    }
}

} // namespace
