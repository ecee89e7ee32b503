#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

namespace {

class MeshPartNamesTest : public DocumentTest {};

TEST_F(MeshPartNamesTest, NumberFollowsTheHighestInTheMeshManager) {
    MemoryFeature part = document.MeshPart("Mesh-1", 1);
    MemoryFeature seven = document.MeshPart("Mesh-7", 2);
    const auto propose = [](MemoryFeature feature) {
        ZFXISpecObject_var handle(feature);
        ZFXUnicodeString name("Mesh-");
        const HRESULT code = QVRNameUtil::GetUniqueNameForMeshPart(handle, name);
        return ResultText(code) + "|" + Text(name);
    };
    EXPECT_EQ(propose(part), "S_OK|Mesh-8");
    EXPECT_EQ(propose(seven), "S_OK|Mesh-8"); // counts itself
}

} // namespace
