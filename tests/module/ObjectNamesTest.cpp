#include "QVRNameUtil.h"

#include "QVRGenI18NUtils.h"
#include "support/DocumentTest.h"

#include <tuple>

namespace {

class ObjectNamesTest : public DocumentTest {
protected:
    static std::string Legal(MemoryFeature feature) {
        ZFXISpecObject_var handle(feature);
        ZFXUnicodeString name("before");
        const HRESULT code = QVRNameUtil::GetMorvelObjectName(handle, name);
        return ResultText(code) + "|" + Text(name);
    }
};

TEST_F(ObjectNamesTest, NamesAreGivenAsStoredOrMadeLegal) {
    MemoryFeature father = document.Model().Feature("Connection", "Father").With(IID_ZFXISamAnalysisScan);
    MemoryFeature bolt = father.Feature("SAMBoltTightening", "Bolt.1");
    father.Feature("QVRPressure", "Bolt-1");
    MemoryFeature load = father.Feature("QVRPressure", "Load.1.a");
    father.Feature("QVRPressure", "load.1.A");
    EXPECT_EQ(Legal(load), "S_OK|Load-1-a"); // siblings count for bolts only
    EXPECT_EQ(Legal(bolt), "S_OK|Bolt-1");   // stored names are compared, not legal ones
    EXPECT_EQ(Legal(load.Alias("1.a")), "LeadingDigitERR_01|1-a");
    EXPECT_EQ(Legal(load.Alias("a\\.")), "IllegalCharERR_01 -100|a\\-");
    EXPECT_EQ(Legal(load.Alias("")), "NameLengthERR_02|");
    EXPECT_EQ(Legal(load.Alias(Repeated('.', 73))).substr(0, 17), "NameLengthERR_01|");

    for (const char* lateType : {"SAMVirtBoltTightening", "SAMVirtSpringBoltTigh"}) {
        MemoryFeature twin = father.Feature(lateType, "BOLT.1");
        EXPECT_EQ(Legal(twin), "DuplicateZFXNameERR_01|BOLT-1");
        twin.Alias(lateType);
        EXPECT_EQ(Legal(twin).substr(0, 5), "S_OK|");
    }
    EXPECT_EQ(Legal(father.Feature("SAMVirtSpringBoltTight", "Bolt.1")), "S_OK|Bolt-1"); // no bolt: another type
    MemoryFeature nameless = father.Feature("QVRPressure", "x").Without(IID_ZFXIAlias);
    EXPECT_EQ(Legal(bolt), "DuplicateZFXNameERR_01|Bolt-1"); // any failure of the comparison
    EXPECT_EQ(Legal(nameless), "ZFXIAliasERR_01|before");
    EXPECT_EQ(Legal(bolt.Father(load)), "ParentERR_01|Bolt-1");
    EXPECT_EQ(Legal(bolt.Father(bolt)), "ParentERR_01|Bolt-1");
    EXPECT_EQ(Legal(bolt.With(IID_ZFXISamAnalysisScan)), "S_OK|Bolt-1"); // its own father, without children
    bolt.Without(IID_ZFXISamAnalysisScan);
    EXPECT_EQ(Legal(bolt.Alias("1")), "LeadingDigitERR_01|1"); // judged before the siblings

    ZFXUnicodeString name("before");
    EXPECT_EQ(QVRNameUtil::GetObjectName(bolt.Alias("as.stored "), name), S_OK);
    EXPECT_EQ(Text(name), "as.stored ");
}

TEST_F(ObjectNamesTest, FeaturesTheSolverCannotNameGoByTheirLateType) {
    QVRGenI18NUtils::Instance()->ResetAllLists();
    // clang-format off
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"SAMBoltTightening", "ボルト", "SAMBoltTightening"}, {"SAMBoltTightening", "Träger", "Träger"},
        {"SAMBoltTightening", "螺栓", "SAMBoltTightening-1"}, {"SAMThickness", "厚", "SAMThickness"},
        {"SAMBoltTightening", "日", "SAMBoltTightening-2"}, {"QVRPressure", "圧力", "圧力"}, {"xSAM", "日", "日"},
        {"SAMxSAM", "日", "SAMxSAM"},
    };
    // clang-format on
    for (const auto& [lateType, alias, expectedName] : rows) {
        const ZFXISpecObject_var feature(document.Model().Feature(lateType, alias));
        ZFXUnicodeString name("before");
        EXPECT_EQ(QVRNameUtil::GenerateUniqueName(*feature.Get(), name), S_OK);
        EXPECT_EQ(Text(name), expectedName);
    }
    QVRGenI18NUtils::Instance()->ResetAllLists();
}

} // namespace
