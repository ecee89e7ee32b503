#include "QVRNameUtil.h"

#include "LateTypes.h"
#include "support/DocumentTest.h"

#include <utility>
#include <vector>

namespace {

class BaseNamesTest : public DocumentTest {};

TEST_F(BaseNamesTest, FollowTheExactLateType) {
    // The rows of the table, and late types that no row has.
    std::vector<std::pair<const char*, const char*>> types{
        {"QVRPressureLT", nullptr}, {"QVRPRESSURE", nullptr}, {"QVRFieldOutputLT", nullptr}, {"", nullptr}};
    for (const LateTypes::Row& row : LateTypes::kRows)
        types.emplace_back(row.lateType, row.baseName);
    for (const auto& [lateType, expectedBaseName] : types) {
        ZFXISpecObject_var feature(document.Model().Feature(lateType, "x"));
        ZFXUnicodeString baseName("before");
        EXPECT_EQ(QVRNameUtil::CreateBaseName(feature, baseName), S_OK);
        EXPECT_EQ(Text(baseName), expectedBaseName == nullptr ? "before" : expectedBaseName) << lateType;
    }
}

} // namespace
