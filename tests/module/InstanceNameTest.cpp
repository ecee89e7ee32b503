#include "QVRGenInstanceName.h"

#include "support/DocumentTest.h"

#include <tuple>

namespace {

class InstanceNameTest : public DocumentTest {
protected:
    /// Returns the instance name and the part name.
    std::string Names(const ZFXUnicodeString& displayName, int tag) {
        ZFXUnicodeString instance("i");
        ZFXUnicodeString part("p");
        const ZFXIMSHMeshPart_var handle(document.MeshPart(displayName, tag));
        EXPECT_EQ(QVRGenInstanceName::GetUniqueLegalInstanceName(handle, instance, part), S_OK);
        return Narrow(instance) + "|" + Narrow(part);
    }
};

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
        EXPECT_EQ(Names(display, 5), "Instance5" + expected + "|Part5" + expected) << display;
    EXPECT_EQ(Names("OrphanMesh-Bracket. 1", 5), "Bracket. 1|Bracket. 1");
    EXPECT_EQ(Names("OrphanMesh-", -1), "|");
    EXPECT_EQ(Names(Repeated(' ', kMillion) + "_x" + Repeated('_', kMillion), 2147483647),
              "Instance2147483647-_x|Part2147483647-_x");
    EXPECT_EQ(Names(Repeated('x', 80), -12),
              "Instance-12-" + std::string(60, 'x') + "|Part-12-" + std::string(64, 'x'));
    ZFXUnicodeString both; // one object for both names
    const ZFXIMSHMeshPart_var part(document.MeshPart("B", 5));
    EXPECT_EQ(QVRGenInstanceName::GetUniqueLegalInstanceName(part, both, both), S_OK);
    EXPECT_EQ(both, "Part5-B");
}

TEST_F(InstanceNameTest, ContainsTheTag) {
    constexpr int kUnchanged = 77;
    const std::tuple<const char*, int, HRESULT> rows[] = {
        {"INSTANCE3-BRACKET-1", 3, S_OK},
        {"xINSTANCE12-X-9", 12, S_OK},
        {"INSTANCE12", 12, S_OK},
        {"INSTANCE7INSTANCE8", 7, S_OK},
        {"INSTANCEabc-1", kUnchanged, S_OK},
        {"INSTANCE99999999999-1", kUnchanged, S_OK},
        {"INSTANCE-5", kUnchanged, S_OK},
        {"INSTANCE-5-1", kUnchanged, S_OK},
        {"INSTANCE", kUnchanged, S_OK},
        {"Instance3-Bracket", -1, E_FAIL},
        {"PART3-B", -1, E_FAIL},
        {"", -1, E_FAIL},
    };
    for (const auto& [name, expectedTag, expectedCode] : rows) {
        int tag = kUnchanged;
        EXPECT_EQ(QVRGenInstanceName::GetUniqueLegalInstanceTag(tag, name), expectedCode) << name;
        EXPECT_EQ(tag, expectedTag) << name;
    }
}

} // namespace
