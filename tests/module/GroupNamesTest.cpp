#include "support/ScopeTest.h"

#include <tuple>

namespace {

struct GroupNamesTest : ScopeTest {
    MemoryFeature Connector() { return document.Model().Add(MemoryKind::Connector, "SAMConnector", "c"); }
    MemoryFeature Connector(const char* groupAlias) {
        return Connector().SetGroup(document.Model().Add(MemoryKind::Group, "SAMGroup", groupAlias));
    }
    template <class From>
    static std::string GroupName(From from) {
        return Call("before", [&](auto& name) { return QVRNameUtil::GetSupportGroupName(from, name); });
    }
};

TEST_F(GroupNamesTest, ASingleConnectorDeterminesTheGroupName) {
    MemoryFeature bolt = Connector("Bolt.Top");
    const std::tuple<const char*, std::vector<MemoryFeature>, const char*> rows[] = {
        {"one connector", {bolt}, "S_OK|Bolt-Top"},
        {"no connector", {}, "S_OK|"},
        {"two connectors", {bolt, bolt}, "S_OK|"},
        {"a name that the solver rejects", {Connector("上")}, "S_OK|"},
        {"a character up to U+00FF", {Connector("Träger")}, "S_OK|Träger"},
        {"not a connector", {document.Model()}, "S_OK|"},
        {"an empty handle", {MemoryFeature()}, "S_OK|"},
        {"a connector without a group", {Connector()}, "E_FAIL|"},
    };
    for (const auto& [situation, connectors, expected] : rows) {
        MemoryFeature support = document.Model().Add(MemoryKind::Support, "SAMSupport", "s");
        for (const MemoryFeature& connector : connectors)
            support.AddConnector(connector);
        EXPECT_EQ(GroupName(ZFXISpecObject_var(support)), expected) << situation;
        EXPECT_EQ(GroupName(MakeList(connectors)), expected) << situation << ", in a list";
    }
}

TEST_F(GroupNamesTest, ADesignNeedsOneConnectorPerSide) {
    MemoryFeature design = document.Model().Add(MemoryKind::ConnectionDesign, "SAMFaceFaceContact", "d");
    EXPECT_EQ(GroupNames(design), "S_OK|s") << "no connectors";
    design.AddMaster(Connector("A.1")).AddSlave(Connector());
    EXPECT_EQ(GroupNames(design), "S_OK|A-1|") << "the slave connector has no group";
    QVRISamAnalysisConnectionDesign_var handle(design);
    ZFXUnicodeString both("m"); // one object for both names
    EXPECT_EQ(QVRNameUtil::GetGrpNameofMasterAndSlave(handle, both, both), S_OK);
    EXPECT_EQ(both, "");
    design.AddSlave(Connector("B"));
    EXPECT_EQ(GroupNames(design), "S_OK|s") << "two slave connectors";
}

} // namespace
