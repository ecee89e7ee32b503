#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

namespace {

class GroupNamesTest : public DocumentTest {
protected:
    MemoryFeature Connector(const char* groupAlias) {
        MemoryFeature group = document.Model().Add(MemoryKind::Group, "SAMGroup", groupAlias);
        return document.Model().Add(MemoryKind::Connector, "SAMConnector", "c").SetGroup(group);
    }
    /// Returns the group name of a support, and compares it with that of a list of its connectors.
    std::string GroupName(const std::vector<MemoryFeature>& connectors) {
        MemoryFeature support = document.Model().Add(MemoryKind::Support, "SAMSupport", "s");
        for (const MemoryFeature& connector : connectors)
            support.AddConnector(connector);
        ZFXISpecObject_var handle(support);
        const auto list = MakeList(connectors);
        const auto nameOf = [](auto& from) {
            return Call("before", [&](auto& name) { return QVRNameUtil::GetSupportGroupName(from, name); });
        };
        EXPECT_EQ(nameOf(list), nameOf(handle));
        return nameOf(handle);
    }
};

TEST_F(GroupNamesTest, ASingleConnectorDeterminesTheGroupName) {
    MemoryFeature bolt = Connector("Bolt.Top");
    MemoryFeature loose = document.Model().Add(MemoryKind::Connector, "SAMConnector", "c");
    EXPECT_EQ(GroupName({bolt}), "S_OK|Bolt-Top");
    EXPECT_EQ(GroupName({}), "S_OK|");
    EXPECT_EQ(GroupName({bolt, bolt}), "S_OK|");
    EXPECT_EQ(GroupName({Connector("上")}), "S_OK|");
    EXPECT_EQ(GroupName({Connector("Träger")}), "S_OK|Träger");
    EXPECT_EQ(GroupName({Connector("")}), "S_OK|");
    EXPECT_EQ(GroupName({document.Model()}), "S_OK|") << "not a connector";
    EXPECT_EQ(GroupName({MemoryFeature()}), "S_OK|") << "an empty handle";
    EXPECT_EQ(GroupName({loose}), "E_FAIL|");
    loose.SetGroup(document.Model().Add(MemoryKind::Group, "SAMGroup", "x").Without(IID_ZFXIAlias));
    EXPECT_EQ(GroupName({loose}), "S_OK|");
}

TEST_F(GroupNamesTest, ADesignNeedsOneConnectorPerSide) {
    MemoryFeature design = document.Model().Add(MemoryKind::ConnectionDesign, "SAMFaceFaceContact", "d");
    QVRISamAnalysisConnectionDesign_var handle(design);
    const auto groupNames = [&] {
        ZFXUnicodeString slave("s");
        const std::string master =
            Call("m", [&](auto& name) { return QVRNameUtil::GetGrpNameofMasterAndSlave(handle, name, slave); });
        return master + "|" + Narrow(slave);
    };
    EXPECT_EQ(groupNames(), "S_OK|s") << "no connectors";
    design.AddMaster(Connector("A.1")).AddSlave(document.Model().Add(MemoryKind::Connector, "SAMConnector", "c"));
    EXPECT_EQ(groupNames(), "S_OK|A-1|") << "the slave connector has no group";
    ZFXUnicodeString both("m"); // one object for both names
    EXPECT_EQ(QVRNameUtil::GetGrpNameofMasterAndSlave(handle, both, both), S_OK);
    EXPECT_EQ(both, "");
    design.AddSlave(Connector("B"));
    EXPECT_EQ(groupNames(), "S_OK|s") << "two slave connectors";
}

} // namespace
