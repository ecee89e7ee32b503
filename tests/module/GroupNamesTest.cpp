#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

namespace {

class GroupNamesTest : public DocumentTest {
protected:
    MemoryFeature Connector(const char* groupAlias) {
        MemoryFeature group = document.Model().Add(MemoryKind::Group, "SAMGroup", groupAlias);
        return document.Model().Add(MemoryKind::Connector, "SAMConnector", "c").SetGroup(group);
    }
    std::string Of(std::initializer_list<MemoryFeature> connectors) {
        MemoryFeature support = document.Model().Add(MemoryKind::Support, "SAMSupport", "s");
        for (const MemoryFeature& connector : connectors)
            support.AddConnector(connector);
        ZFXISpecObject_var handle(support);
        ZFXUnicodeString bySupport("before");
        ZFXUnicodeString byList("before");
        const HRESULT code = QVRNameUtil::GetSupportGroupName(handle, bySupport);
        EXPECT_EQ(QVRNameUtil::GetSupportGroupName(ListOf(connectors), byList), code);
        EXPECT_EQ(bySupport, byList);
        return ResultText(code) + "|" + Text(bySupport);
    }
};

TEST_F(GroupNamesTest, OneConnectorNamesTheGroup) {
    MemoryFeature bolt = Connector("Bolt.Top");
    MemoryFeature loose = document.Model().Add(MemoryKind::Connector, "SAMConnector", "c");
    EXPECT_EQ(Of({bolt}), "S_OK|Bolt-Top");
    EXPECT_EQ(Of({}), "S_OK|");
    EXPECT_EQ(Of({bolt, bolt}), "S_OK|");
    EXPECT_EQ(Of({Connector("上")}), "S_OK|");
    EXPECT_EQ(Of({Connector("Träger")}), "S_OK|Träger");
    EXPECT_EQ(Of({Connector("")}), "S_OK|");
    EXPECT_EQ(Of({document.Model()}), "S_OK|"); // no connector
    EXPECT_EQ(Of({loose}), "E_FAIL|");
    ZFXUnicodeString name("before");
    EXPECT_EQ(QVRNameUtil::GetSupportGroupName(ListOf({MemoryFeature()}), name), S_OK); // an empty handle
    EXPECT_EQ(Text(name), "");
    loose.SetGroup(document.Model().Add(MemoryKind::Group, "SAMGroup", "x").Without(IID_ZFXIAlias));
    EXPECT_EQ(Of({loose}), "S_OK|");
}

TEST_F(GroupNamesTest, BothSidesOfADesignNeedOneConnectorEach) {
    const auto of = [](MemoryFeature design) {
        QVRISamAnalysisConnectionDesign_var handle(design);
        ZFXUnicodeString master("m");
        ZFXUnicodeString slave("s");
        const HRESULT code = QVRNameUtil::GetGrpNameofMasterAndSlave(handle, master, slave);
        return ResultText(code) + "|" + Text(master) + "|" + Text(slave);
    };
    MemoryFeature design = document.Model().Add(MemoryKind::ConnectionDesign, "SAMFaceFaceContact", "d");
    EXPECT_EQ(of(design), "S_OK|m|s");
    design.AddMaster(Connector("A.1")).AddSlave(document.Model().Add(MemoryKind::Connector, "SAMConnector", "c"));
    EXPECT_EQ(of(design), "S_OK|A-1|"); // the side that failed is emptied, the design succeeds
    QVRISamAnalysisConnectionDesign_var handle(design);
    ZFXUnicodeString both("m");
    EXPECT_EQ(QVRNameUtil::GetGrpNameofMasterAndSlave(handle, both, both), S_OK); // one object: written last
    EXPECT_EQ(Text(both), "");
    design.AddSlave(Connector("B"));
    EXPECT_EQ(of(design), "S_OK|m|s");
}

} // namespace
