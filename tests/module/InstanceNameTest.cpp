#include "support/ScopeTest.h"

namespace {

using InstanceNameTest = ScopeTest;

TEST_F(InstanceNameTest, IsFormedFromTheTagAndTheCleanedDisplayName) {
    // clang-format off
    const std::pair<const char*, std::string> rows[] = {
        {"Bracket.1", "-Bracket-1"}, {"Root: Bracket", "-Bracket"}, {":Bracket", "-Bracket"}, {"a:b:Bracket", "-racket"},
        {"Root:", "-oot:"}, {":", "-:"}, {"a:b", ""}, {"__Bracket_ _", "-Bracket"}, {" _Bracket ", "-_Bracket"},
        {"\"B\\C\"", "-B/C"}, {"_ _", ""}, {"   ", ""}, {"\t", "-\t"}, {"a\t_ ", "-a\t"}, {"a(b)#", "-a(b)#"},
        {"orphanMesh-x", "-orphanMesh-x"}, {"\"_x\"", "-x"}, {"Träger", "-Träger"},
    };
    // clang-format on
    for (const auto& [display, expected] : rows)
        EXPECT_EQ(InstanceNames(document.MeshPart(display, 5)), "S_OK|Instance5" + expected + "|Part5" + expected);
    EXPECT_EQ(InstanceNames(document.MeshPart("OrphanMesh-Bracket. 1", 5)), "S_OK|Bracket. 1|Bracket. 1");
    EXPECT_EQ(InstanceNames(document.MeshPart("OrphanMesh-", -1)), "S_OK||");
    EXPECT_EQ(InstanceNames(document.MeshPart(Repeated(' ', kMillion) + "_x" + Repeated('_', kMillion), 2147483647)),
              "S_OK|Instance2147483647-_x|Part2147483647-_x");
    EXPECT_EQ(InstanceNames(document.MeshPart(Repeated('x', 80), -12)),
              "S_OK|Instance-12-" + std::string(60, 'x') + "|Part-12-" + std::string(64, 'x'));
    ZFXUnicodeString both; // one object for both names
    const ZFXIMSHMeshPart_var part(document.MeshPart("B", 5));
    EXPECT_EQ(QVRGenInstanceName::GetUniqueLegalInstanceName(part, both, both), S_OK);
    EXPECT_EQ(both, "Part5-B");
}

TEST_F(InstanceNameTest, BatchEqualsSingleCalls) {
    ZFXListVal<ZFXIMSHMeshPart_var> parts;
    parts.Append({});
    for (const char* display : {"Bracket", "部品", "部品", "OrphanMesh-", "軸"})
        parts.Append(ZFXIMSHMeshPart_var(document.MeshPart(display, parts.Size())));
    parts.Append(ZFXIMSHMeshPart_var(document.MeshPart("x", 9).Without(IID_ZFXIAlias)));
    parts.Append(ZFXIMSHMeshPart_var(document.Model().Add(MemoryKind::MeshPart, "T", "孤")));
    ZFXListVal<QVRMeshPartNames> names;
    EXPECT_EQ(QVRGenInstanceName::GetUniqueLegalInstanceNames(parts, names), S_OK);
    ASSERT_EQ(names.Size(), parts.Size());
    for (int i = 1; i <= parts.Size(); ++i) {
        ZFXUnicodeString instance;
        ZFXUnicodeString part;
        const HRESULT code = QVRGenInstanceName::GetUniqueLegalInstanceName(parts[i], instance, part);
        EXPECT_EQ(ResultText(names[i].code), ResultText(code)) << i;
        EXPECT_EQ(names[i].instanceName, instance) << i;
        EXPECT_EQ(names[i].partName, part) << i;
    }
}

TEST_F(InstanceNameTest, ContainsTheTag) {
    // clang-format off
    const std::pair<const char*, int> rows[] = { // without a number, the tag 77 is unchanged
        {"INSTANCE3-BRACKET-1", 3}, {"xINSTANCE12-X-9", 12}, {"INSTANCE12", 12}, {"INSTANCE7INSTANCE8", 7},
        {"INSTANCEabc-1", 77}, {"INSTANCE99999999999-1", 77}, {"INSTANCE-5", 77}, {"INSTANCE-5-1", 77}, {"INSTANCE", 77},
        {"Instance3-Bracket", -1}, {"PART3-B", -1}, {"", -1},
    };
    // clang-format on
    for (const auto& [name, expected] : rows) {
        int tag = 77;
        EXPECT_EQ(QVRGenInstanceName::GetUniqueLegalInstanceTag(tag, name), expected == -1 ? E_FAIL : S_OK) << name;
        EXPECT_EQ(tag, expected) << name;
    }
}

} // namespace
