#include "support/ScopeTest.h"

#include <tuple>

namespace {

class EntryPointsTest : public ScopeTest {
protected:
    static std::string CheckName(MemoryFeature feature, const ZFXUnicodeString& name, unsigned char checkStart) {
        return Call(feature, name,
                    [&](auto& handle, auto& text) { return QVRNameUtil::CheckName(handle, text, checkStart); });
    }
    static std::string CheckFileName(MemoryFeature feature, const ZFXUnicodeString& name) {
        return Call(feature, name, QVRNameUtil::CheckFileName);
    }

    MemoryFeature set = document.Model().Set("S");
    MemoryFeature feature = set.Feature("T", "Current");
    MemoryFeature other = set.Feature("T", "Taken");
};

TEST_F(EntryPointsTest, UniquenessIsCheckedBeforeTheText) {
    const char* const reserved = "IllegalCharERR_01 -100";
    const char* const illegal = "IllegalCharERR_02 -100";
    // clang-format off
    const std::tuple<const char*, ZFXUnicodeString, const char*, const char*> rows[] = {
        {"Current", "New", "S_OK", "S_OK"},
        {"Current", "taken", kDuplicate, "S_OK"}, // CheckFileName compares the current name
        {"TAKEN", "New", "S_OK", kDuplicate}, {"TAKEN", "", kDuplicate, kDuplicate},
        {"", "", "NameLengthERR_02", "S_OK"}, {"1.", "", "LeadingDigitERR_01", reserved},
        {"Current", Repeated('x', 72), "S_OK", "S_OK"}, {"Current", Repeated('x', 73), "NameLengthERR_01", "S_OK"},
        {"Current", "1st", "LeadingDigitERR_01", "S_OK"}, {"Current", "1.日", "LeadingDigitERR_01", reserved},
        {"Current", "a.日", reserved, reserved}, {"Current", "a b日", "DoubleByteCharErr_01", illegal},
        {"Current", "Träger", "S_OK", "S_OK"},
        {"Current", ZFXUnicodeString(u"\xDC00"), "DoubleByteCharErr_01", "S_OK"},
        {"____", "    ", "S_OK", illegal}, {"Current", Repeated('1', kMillion), "NameLengthERR_01", "S_OK"},
    };
    // clang-format on
    for (const auto& [current, name, check, file] : rows) {
        feature.Alias(current);
        EXPECT_EQ(CheckName(feature, name, 1), check) << name;
        EXPECT_EQ(CheckFileName(feature, name), file) << name;
    }
    feature.Alias("Current");
    EXPECT_EQ(CheckName(feature, "1st", 0), "S_OK");
    EXPECT_EQ(CheckName(feature, "1.", 0), reserved);
    other.Alias(Repeated('y', 80));
    EXPECT_EQ(CheckName(feature, Repeated('y', 80), 1), kDuplicate) << "a name that clashes and is too long";
    for (const MemoryFeature nameless : {feature.Without(IID_ZFXIAlias), MemoryFeature()}) {
        EXPECT_EQ(CheckName(nameless, "x", 1), "ZFXIAliasERR_01");
        EXPECT_EQ(CheckFileName(nameless, "x"), "ZFXIAliasERR_01");
    }
}

TEST_F(EntryPointsTest, GetUniqueNameUsesTheCurrentCaseByDefault) {
    MemoryFeature step = document.Case("Static").Step("T", "Step-1"); // the first child of a history is not counted
    MemoryFeature second = document.Case("Second");
    second.Step("T", "Initial");
    second.Step("T", "Step-4");
    EXPECT_EQ(Propose({}, "Step-", {}), "Step-");
    EXPECT_EQ(Propose(step, "Step-", {}), "Step-1");
    EXPECT_EQ(Propose(step, "Step-", second), "Step-5");
}

} // namespace
