#include "QVRNameUtil.h"

#include "support/SingletonTest.h"

#include <tuple>

namespace {

struct ObjectNamesTest : SingletonTest {
    static std::string Legal(MemoryFeature feature) {
        return Call(feature, "before", QVRNameUtil::GetMorvelObjectName);
    }

    MemoryFeature father = document.Model().Feature("Connection", "Father").With(IID_ZFXISamAnalysisScan);
    MemoryFeature bolt = father.Feature("SAMBoltTightening", "Bolt.1");
};

TEST_F(ObjectNamesTest, GetMorvelObjectNameReplacesFullStopsAndChecksTheText) {
    MemoryFeature load = father.Feature("QVRPressure", "Load.1.a");
    EXPECT_EQ(Legal(load), "S_OK|Load-1-a");
    EXPECT_EQ(Legal(load.Alias("1.a")), "LeadingDigitERR_01|1-a");
    EXPECT_EQ(Legal(load.Alias("a\\.")), "IllegalCharERR_01 -100|a\\-");
    EXPECT_EQ(Legal(load.Alias(Repeated('.', 73))), "NameLengthERR_01|" + std::string(73, '-'));
    EXPECT_EQ(Legal(bolt.Alias("1")), "LeadingDigitERR_01|1") << "the text is checked first";
}

TEST_F(ObjectNamesTest, StoredNamesOfBoltTighteningsMustDifferFromTheirSiblings) {
    father.Feature("QVRPressure", "Bolt-1");
    EXPECT_EQ(Legal(bolt), "S_OK|Bolt-1") << "the legal name of a sibling is not compared";
    for (const char* lateType : {"SAMVirtBoltTightening", "SAMVirtSpringBoltTigh"})
        EXPECT_EQ(Legal(father.Feature(lateType, "BOLT.1")), "DuplicateZFXNameERR_01|BOLT-1");
    EXPECT_EQ(Legal(father.Feature("SAMVirtSpringBoltTight", "Bolt.1")), "S_OK|Bolt-1") << "another late type";
    EXPECT_EQ(Legal(bolt.Alias("Bolt.2")), "S_OK|Bolt-2");
    father.Feature("QVRPressure", "x").Without(IID_ZFXIAlias);
    EXPECT_EQ(Legal(bolt), "DuplicateZFXNameERR_01|Bolt-2") << "a sibling without a name";
    EXPECT_EQ(Legal(bolt.Father(bolt)), "ParentERR_01|Bolt-2") << "a father that cannot be searched";
    EXPECT_EQ(Legal(bolt.With(IID_ZFXISamAnalysisScan)), "S_OK|Bolt-2") << "a father without children";
}

TEST_F(ObjectNamesTest, LateTypeReplacesANameThatTheSolverRejects) {
    // clang-format off
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"SAMBoltTightening", "ボルト", "SAMBoltTightening"}, {"SAMBoltTightening", "Träger", "Träger"},
        {"SAMBoltTightening", "螺栓", "SAMBoltTightening-1"}, {"SAMThickness", "厚", "SAMThickness"},
        {"SAMBoltTightening", "日", "SAMBoltTightening-2"}, {"QVRPressure", "圧力", "圧力"}, {"xSAM", "日", "日"},
        {"SAMxSAM", "日", "SAMxSAM"},
    };
    // clang-format on
    for (const auto& [lateType, alias, expected] : rows) {
        const ZFXISpecObject_var feature(document.Model().Feature(lateType, alias));
        ZFXUnicodeString name("before");
        EXPECT_EQ(QVRNameUtil::GenerateUniqueName(*feature.Get(), name), S_OK);
        EXPECT_EQ(name, expected);
    }
}

} // namespace
