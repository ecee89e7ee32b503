#include "QVRGenInstanceName.h"

#include "support/DocumentTest.h"

namespace {

class InstanceNameTest : public DocumentTest {
protected:
    static std::string Name(MemoryFeature part) {
        ZFXUnicodeString instance("i");
        ZFXUnicodeString name("p");
        const HRESULT code = QVRGenInstanceName::GetUniqueLegalInstanceName(ZFXIMSHMeshPart_var(part), instance, name);
        return (code == S_OK ? "" : ResultText(code) + "|") + Text(instance) + "|" + Text(name);
    }
};

TEST_F(InstanceNameTest, DisplayNamesAreCleaned) {
    struct Row {
        const char* display;
        const char* base; // behind the word, the tag and the dash
    };
    // clang-format off
    const Row rows[] = {
        {"Bracket.1", "Bracket-1"}, {"Root: Bracket", "Bracket"}, {":Bracket", "Bracket"}, {"a:b:Bracket", "racket"},
        {"Root:", "oot:"}, {":", ":"}, {"a:b", ""}, {"__Bracket_ _", "Bracket"}, {" _Bracket ", "_Bracket"},
        {"\"B\\C\"", "B/C"}, {"_ _", ""}, {"   ", ""}, {"\t", "\t"}, {"a\t_ ", "a\t"}, {"a(b)#", "a(b)#"},
        {"orphanMesh-x", "orphanMesh-x"}, {"\"_x\"", "x"}, {"Träger", "Träger"},
    };
    // clang-format on
    for (const Row& row : rows) {
        const std::string tail = *row.base == '\0' ? "" : std::string("-") + row.base;
        EXPECT_EQ(Name(document.MeshPart(row.display, 5)), "Instance5" + tail + "|Part5" + tail) << row.display;
    }
    EXPECT_EQ(Name(document.MeshPart("OrphanMesh-Bracket. 1", 5)), "Bracket. 1|Bracket. 1");
    EXPECT_EQ(Name(document.MeshPart("OrphanMesh-", -1)), "|");
    EXPECT_EQ(Name(document.MeshPart(Repeated(' ', kMillion) + "_x" + Repeated('_', kMillion), 2147483647)),
              "Instance2147483647-_x|Part2147483647-_x");
    ZFXUnicodeString both;
    const ZFXIMSHMeshPart_var part(document.MeshPart("B", 5));
    EXPECT_EQ(QVRGenInstanceName::GetUniqueLegalInstanceName(part, both, both), S_OK);
    EXPECT_EQ(Text(both), "Part5-B"); // one object: written last
    EXPECT_EQ(Name(document.MeshPart(Repeated('x', 80), -12)),
              "Instance-12-" + std::string(60, 'x') + "|Part-12-" + std::string(64, 'x'));
}

TEST_F(InstanceNameTest, TagsAreReadBack) {
    struct Row {
        const char* name;
        int tag; // 77: as the caller passed it
        HRESULT code;
    };
    const Row rows[] = {
        {"INSTANCE3-BRACKET-1", 3, S_OK}, {"xINSTANCE12-X-9", 12, S_OK},
        {"INSTANCE12", 12, S_OK},         {"INSTANCEabc-1", 77, S_OK},
        {"INSTANCE-5", 77, S_OK},         {"INSTANCE99999999999-1", 77, S_OK},
        {"INSTANCE", 77, S_OK},           {"Instance3-Bracket", -1, E_FAIL},
        {"PART3-B", -1, E_FAIL},          {"", -1, E_FAIL},
        {"INSTANCE7INSTANCE8", 7, S_OK},  {"INSTANCE-5-1", 77, S_OK},
    };
    for (const Row& row : rows) {
        int tag = 77;
        EXPECT_EQ(QVRGenInstanceName::GetUniqueLegalInstanceTag(tag, row.name), row.code) << row.name;
        EXPECT_EQ(tag, row.tag) << row.name;
    }
}

} // namespace
