#include "document/FeaturePaths.h"

#include "ExitCode.h"

#include <gtest/gtest.h>

namespace {

TEST(FeaturePaths, FindOneFeatureByIdPointerOrPath) {
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
        {"Pressure-1", "/cases/0/steps/1"}, // an id comes before a path
        {"Step-1/Pressure-1", "/cases/0/steps/0/sets/0/features/0"},
        {"/cases/0/steps/0/sets/0", "/cases/0/steps/0/sets/0"},
        {"圧力/2", "/cases/0/steps/0/sets/0/features/2"},
        {"Step-1", "/propertySet/features/0"}, // a whole path comes before the end of one
        {"Static/Step-1", "/cases/0/steps/0"},
        {"Load", "/cases/1/steps/0"},
        {"Static", "may be each of these features; tell one by its id, its whole path or its JSON pointer:\n"
                   "  Static  (/cases/0)\n  Static  (/cases/1)"},
        {"rpessure-1", "did you mean:\n  Static/Step-1/Pressure-1  (/cases/0/steps/0/sets/0/features/0)"},
        {"Statik/step-2", "did you mean:\n  Static/Step-2  (/cases/0/steps/1)\n  Static/Step-1  (/cases/0/steps/0)"},
        {"Step-1/", "did you mean:\n  Step-1  (/propertySet/features/0)"},
        {"nwe", "did you mean:\n  /cases/0/steps/0/sets/0/features/1"},
        {"", "there are:"},
        {"/cases/1/steps/7", "leads to no object of the document; near it are:\n  Static/Load  (/cases/1/steps/0)"},
        {"/cases/0/name", "leads to no object of the document; near it are:"},
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
