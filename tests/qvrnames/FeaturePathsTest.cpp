#include "document/FeaturePaths.h"

#include "ExitCode.h"

#include <gtest/gtest.h>

namespace {

TEST(FeaturePaths, FindFeatureByIdPointerOrPath) {
    const LoadedDocument loaded(R"({
        "propertySet": {"features": [{"type": "A", "name": "Step-1"}]},
        "cases": [
            {"name": "Static", "steps": [
                {"type": "S", "name": "Step-1", "sets": [{"type": "L", "features": [
                    {"type": "P", "name": "Pressure-1"}, {"type": "P", "id": "new"},
                    {"type": "P", "name": "圧力/2"}]}]},
                {"type": "S", "name": "Step-2", "id": "Pressure-1"}]},
            {"name": "Static", "steps": [{"type": "S", "name": "Load"}]}]})");
    const struct {
        const char* words;
        const char* expected;
    } rows[] = {
        {"new", "/cases/0/steps/0/sets/0/features/1"},
        {"Pressure-1", "/cases/0/steps/1"}, // an id has priority over a path
        {"Step-1/Pressure-1", "/cases/0/steps/0/sets/0/features/0"},
        {"/cases/0/steps/0/sets/0", "/cases/0/steps/0/sets/0"},
        {"圧力/2", "/cases/0/steps/0/sets/0/features/2"},
        {"Step-1", "/propertySet/features/0"}, // a full path has priority over the end of a path
        {"Static/Step-1", "/cases/0/steps/0"},
        {"Load", "/cases/1/steps/0"},
        {"Static", "matches several features; specify one by its id, its full path or its JSON pointer:\n"
                   "  Static  (/cases/0)\n  Static  (/cases/1)"},
        {"rpessure-1", "did you mean:\n  Static/Step-1/Pressure-1  (/cases/0/steps/0/sets/0/features/0)"},
        {"Statik/step-2", "did you mean:\n  Static/Step-2  (/cases/0/steps/1)\n  Static/Step-1  (/cases/0/steps/0)"},
        {"Step-1/", "did you mean:\n  Step-1  (/propertySet/features/0)"},
        {"nwe", "did you mean:\n  /cases/0/steps/0/sets/0/features/1"},
        {"", "available features:"},
        {"/cases/1/steps/7",
         "does not lead to an object of the document; nearby objects:\n  Static/Load  (/cases/1/steps/0)"},
        {"/cases/0/name", "does not lead to an object of the document; nearby objects:"},
    };
    for (const auto& row : rows) {
        std::string found;
        try {
            found = PointerOf(loaded, FindEntry(loaded, row.words));
        } catch (const BadInput& error) {
            found = error.what();
        }
        if (*row.expected == '/')
            EXPECT_EQ(found, row.expected) << row.words;
        else
            EXPECT_NE(found.find(row.expected), std::string::npos) << row.words << ": " << found;
    }
}

} // namespace
