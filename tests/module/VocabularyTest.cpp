#include "QVRNameUtility.h"

#include "errors/MessageCatalog.h"
#include "internal/MessageIds.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

TEST(Vocabulary, HoldsEachWordOnceAndExactly) {
    const char* const words[] = {
#define WORD(identifier, text) text,
#include "internal/Vocabulary.def"
#undef WORD
    };
    std::set<std::string> distinct;
    for (const char* word : words)
        EXPECT_TRUE(distinct.insert(word).second) << word;
    EXPECT_EQ(distinct.size(), 240U);
    for (const char* odd : {"Frontal Triangle", "Frontal triangle", "BasicUnitTepmerature", "SAMVirtSpringBoltTigh",
                            "-Copy-", "QVROruCatalog.ZFXfct", "2D Property Enhancement-"})
        EXPECT_TRUE(distinct.contains(odd)) << odd;
    EXPECT_EQ(HALVERN_WORKS_UXM2_INTERNAL_QVRNameUtility(), 1);
}

TEST(MessageIds, AllHaveATextThatSaysWhatIsWrongAndWhatToDo) {
    const char* const ids[] = {
#define MESSAGE_ID(id) #id,
#include "internal/MessageIds.def"
#undef MESSAGE_ID
    };
    EXPECT_EQ(std::size(ids), 23U);
    for (const std::string id : ids)
        for (const char* section : {".Diagnostic", ".Advice"}) {
            const auto text = MessageCatalog::Find("QVRNameUtility", id + section);
            EXPECT_TRUE(text && text->GetLengthInChar() > 10) << id << section;
        }
}

} // namespace
