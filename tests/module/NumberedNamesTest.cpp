#include "QVRNameUtil.h"

#include "LateTypes.h"
#include "support/DocumentTest.h"

#include <random>
#include <tuple>
#include <utility>
#include <vector>

namespace {

class NumberedNamesTest : public DocumentTest {};

TEST_F(NumberedNamesTest, TheNextNumberFollowsTheHighest) {
    // clang-format off
    const std::tuple<std::vector<const char*>, const char*, const char*> rows[] = {
        {{}, "Pressure-", "Pressure-1"}, {{"Pressure-1", "Pressure-3"}, "Pressure-", "Pressure-4"}, // gaps stay
        {{"pressure-7", "Old Pressure-9", "Pressure-", "Pressure-x"}, "Pressure-", "Pressure-1"},
        {{"Pressure-2b"}, "Pressure-", "Pressure-3"}, {{"Pressure- 5"}, "Pressure-", "Pressure-6"},
        {{"Pressure--4", "Pressure-+3"}, "Pressure-", "Pressure-4"}, {{"Load12", "Load3"}, "Load", "Load13"},
        {{"Load-0099"}, "Load-", "Load-100"}, {{"7 x", "-9", "y"}, "", "8"},
        {{"P-99999999999999999999"}, "P-", "P-1"}, // no int, so no number
        {{"P-2147483646"}, "P-", "P-2147483647"},
        {{"P-2147483647", "P-1", "P-02", "P-4"}, "P-", "P-3"}, // none above: the lowest that is free
        {{"P-2147483647"}, "P-", "P-1"}, {{"P-2147483647", "P-2", "P-1", "P-3"}, "P-", "P-4"},
        {{"PressurePressure-3"}, "Pressure", "Pressure1"},
    };
    // clang-format on
    for (const auto& [inUse, base, next] : rows) {
        MemoryFeature set = document.Model().Set("S");
        ZFXListValZFXBaseUnknown_var scope;
        for (const char* name : inUse)
            scope.Append(ZFXBaseUnknown_var(set.Feature("T", name)));
        ZFXUnicodeString overList(base);
        ZFXUnicodeString overSet(base);
        EXPECT_EQ(QVRNameUtil::GetNextUniqueName(overList, scope), S_OK);
        EXPECT_EQ(QVRNameUtil::GetNextUniqueName(overSet, ZFXISamAnalysisSet_var(set)), S_OK);
        EXPECT_EQ(Text(overList), next);
        EXPECT_EQ(Text(overSet), next);
    }
}

TEST_F(NumberedNamesTest, ElementsWithoutANameCountForNothing) {
    MemoryFeature set = document.Model().Set("S");
    MemoryFeature two = set.Feature("T", "P-2");
    MemoryFeature nameless = set.Feature("T", "P-8").Without(IID_ZFXIAlias);
    ZFXListValZFXBaseUnknown_var scope = ListOf({nameless, two, two, MemoryFeature()});
    ZFXUnicodeString name("P-");
    EXPECT_EQ(QVRNameUtil::GetNextUniqueName(name, scope), S_OK);
    EXPECT_EQ(Text(name), "P-3");
}

TEST_F(NumberedNamesTest, ABatchGivesWhatSingleProposalsWould) {
    std::mt19937 random(20261122); // NOLINT: the same scopes every time
    const char* const bases[] = {"P-", "p-", "P", "", "P-1", "P- "};
    const char* const numbers[] = {"1",          "2",          "07",          "-3", "+4", " 5",
                                   "2147483646", "2147483647", "99999999999", "x",  "3b", ""};
    const auto any = [&](const auto& list) { return list[random() % std::size(list)]; };
    for (int round = 0; round < 300; ++round) {
        MemoryFeature set = document.Model().Set("S");
        ZFXListValZFXBaseUnknown_var scope;
        for (auto i = random() % 12; i > 0; --i)
            scope.Append(ZFXBaseUnknown_var(set.Feature("T", ZFXUnicodeString(any(bases)) + any(numbers))));
        ZFXUnicodeString base(any(bases));
        ZFXListValZFXUnicodeString batch;
        const int count = static_cast<int>(random() % 6);
        EXPECT_EQ(QVRNameUtil::GetNextUniqueNames(base, scope, count, batch), count < 1 ? E_FAIL : S_OK);
        ASSERT_EQ(batch.Size(), count);
        for (int i = 1; i <= count; ++i) {
            ZFXUnicodeString single(base);
            QVRNameUtil::GetNextUniqueName(single, scope);
            EXPECT_EQ(batch[i], single) << "base " << base;
            scope.Append(ZFXBaseUnknown_var(set.Feature("T", single)));
        }
    }
}

TEST_F(NumberedNamesTest, BaseNamesFollowTheExactLateType) {
    // The rows of the table, and late types that no row has.
    std::vector<std::pair<const char*, const char*>> types{
        {"QVRPressureLT", nullptr}, {"QVRPRESSURE", nullptr}, {"QVRFieldOutputLT", nullptr}, {"", nullptr}};
    for (const LateTypes::Row& row : LateTypes::kRows)
        types.emplace_back(row.lateType, row.baseName);
    for (const auto& [lateType, expectedBaseName] : types) {
        ZFXISpecObject_var feature(document.Model().Feature(lateType, "x"));
        ZFXUnicodeString baseName("before");
        EXPECT_EQ(QVRNameUtil::CreateBaseName(feature, baseName), S_OK);
        EXPECT_EQ(Text(baseName), expectedBaseName == nullptr ? "before" : expectedBaseName) << lateType;
    }
}

} // namespace
