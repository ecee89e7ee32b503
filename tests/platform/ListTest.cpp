#include "collections/ZFXListVal.h"
#include "support/DocumentTest.h"

namespace {

// A list stores only its elements. An element at an index outside of it cannot be assigned.
static_assert(sizeof(ZFXListValZFXUnicodeString) == sizeof(std::vector<ZFXUnicodeString>));
static_assert(!std::is_assignable_v<decltype(std::declval<ZFXListValZFXUnicodeString&>()[9]), const char*>);

class ListTest : public DocumentTest {};

TEST_F(ListTest, IndexesStartAtOneAndFollowTheOrderOfAppending) {
    ZFXListValZFXUnicodeString names;
    for (const char* name : {"a", "b", "a", "A"})
        names.Append(name);
    EXPECT_EQ(names.Size(), 4);
    EXPECT_EQ(Narrow(names[1]), "a");
    EXPECT_EQ(names.NbOccur("a"), 2);
    EXPECT_EQ(names.NbOccur("c"), 0);
    for (const int index : {1, 0, 4}) // the last two are outside of the list
        names.RemovePosition(index);
    EXPECT_EQ(Narrow(names[1]), "b");
    EXPECT_EQ(names.Size(), 3);
    EXPECT_EQ(Narrow(names[0]), ""); // an index outside of the list
    EXPECT_EQ(Narrow(names[9]), "");
    names.RemoveAll(ZFXCollec::ReleaseAllocation);
    EXPECT_EQ(names.Size(), 0);
}

TEST_F(ListTest, LocatesAnObjectByAnyOfItsInterfacePointers) {
    MemoryFeature load = document.Model().Feature("QVRPressure", "Pressure-1");
    ZFXListValZFXISpecObject_var list;
    for (MemoryFeature feature : {document.Model(), load, load})
        list.Append(ZFXISpecObject_var(feature));
    const ZFXIAlias_var otherInterface(load);
    EXPECT_EQ(list.Locate(ZFXISpecObject_var(otherInterface), 1), 2);
    const std::pair<int, int> rows[] = {{-7, 2}, {2, 2}, {3, 3}, {4, 0}, {5, 0}};
    for (const auto& [from, found] : rows)
        EXPECT_EQ(list.Locate(load, from), found) << from;
    EXPECT_EQ(list.Locate(ZFXISpecObject_var(), 1), 0);
    const ZFXListValZFXISpecObject_var copy(list); // copies handles, not objects
    EXPECT_EQ(load.References(), 5);
    EXPECT_EQ(copy.Locate(load, 1), 2);
}

} // namespace
