#include "QVRNameUtil.h"

#include "LateTypes.h"
#include "support/DocumentTest.h"

#include <tuple>

namespace {

using NumberedNamesTest = DocumentTest;

TEST_F(NumberedNamesTest, NextNumberFollowsTheHighest) {
    // clang-format off
    const std::tuple<std::vector<const char*>, const char*, const char*> rows[] = {
        {{}, "Pressure-", "Pressure-1"}, {{"Pressure-1", "Pressure-3"}, "Pressure-", "Pressure-4"}, // gaps are not used
        {{"pressure-7", "Old Pressure-9", "Pressure-", "Pressure-x"}, "Pressure-", "Pressure-1"},
        {{"Pressure-2b"}, "Pressure-", "Pressure-3"}, {{"Pressure- 5"}, "Pressure-", "Pressure-6"},
        {{"Pressure--4", "Pressure-+3"}, "Pressure-", "Pressure-4"}, {{"Load12", "Load3"}, "Load", "Load13"},
        {{"Load-0099"}, "Load-", "Load-100"}, {{"7 x", "-9", "y"}, "", "8"}, {{"P-1", "P-13"}, "P-1", "P-14"},
        {{"P-99999999999999999999"}, "P-", "P-1"}, // not an int, so not a number
        {{"P-2147483646", "P-2"}, "P-", "P-2147483647"},
        {{"P-2147483647", "P-1", "P-02", "P-4"}, "P-", "P-3"}, // after the largest int: the lowest unused number
        {{"P-2147483647"}, "P-", "P-1"}, {{"P-2147483647", "P-2", "P-1", "P-3"}, "P-", "P-4"},
        {{"PressurePressure-3"}, "Pressure", "Pressure1"},
    };
    // clang-format on
    for (const auto& [inUse, baseName, expected] : rows) {
        MemoryFeature set = document.Model().Set("S");
        auto scope = MakeList({set.Feature("T", "P-8").Without(IID_ZFXIAlias), MemoryFeature()}); // nameless elements
        for (const char* name : inUse)
            scope.Append(ZFXBaseUnknown_var(set.Feature("T", name)));
        ZFXUnicodeString bySet(baseName);
        EXPECT_EQ(QVRNameUtil::GetNextUniqueName(bySet, ZFXISamAnalysisSet_var(set)), S_OK);
        EXPECT_EQ(bySet, expected);
        // A batch has the names that single proposals return if each proposed name is used.
        ZFXUnicodeString base(baseName);
        ZFXListValZFXUnicodeString batch;
        EXPECT_EQ(QVRNameUtil::GetNextUniqueNames(base, scope, 1, batch), S_OK);
        batch.RemoveAll();
        EXPECT_EQ(QVRNameUtil::GetNextUniqueNames(base, scope, 5, batch), S_OK);
        for (const int count : {0, -1})
            EXPECT_EQ(QVRNameUtil::GetNextUniqueNames(base, scope, count, batch), E_FAIL);
        ASSERT_EQ(batch.Size(), 5) << "a rejected count changed the list";
        EXPECT_EQ(base, baseName);
        EXPECT_EQ(batch[1], expected);
        for (const ZFXUnicodeString& name : batch) {
            ZFXUnicodeString single(baseName);
            EXPECT_EQ(QVRNameUtil::GetNextUniqueName(single, scope), S_OK);
            EXPECT_EQ(name, single);
            scope.Append(ZFXBaseUnknown_var(set.Feature("T", single)));
        }
    }
}

TEST_F(NumberedNamesTest, ExactLateTypeDeterminesTheBaseName) {
    const auto baseNameOf = [&](const char* lateType) {
        return Call(document.Model().Feature(lateType, "x"), "before", QVRNameUtil::CreateBaseName);
    };
    for (const LateTypes::Row& row : LateTypes::kRows)
        EXPECT_EQ(baseNameOf(row.lateType), row.baseName == nullptr ? "S_OK" : std::string("S_OK|") + row.baseName)
            << row.lateType;
    for (const char* unknownType : {"QVRPressureLT", "QVRPRESSURE", "QVRFieldOutputLT", ""})
        EXPECT_EQ(baseNameOf(unknownType), "S_OK") << unknownType;
}

} // namespace
