// Operations that can run on several threads at a time. The thread sanitizer checks them too.

#include "QVRNameUtil.h"

#include "collections/ZFXListVal.h"
#include "support/Results.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

template <class Work>
void OnFourThreads(Work work) {
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int thread = 0; thread < 4; ++thread)
        threads.emplace_back([thread, &work] {
            for (int i = 0; i < 200; ++i)
                work(thread);
        });
    for (std::thread& thread : threads)
        thread.join();
}

TEST(Threads, CopiesOfOneTextOrListAreIndependent) {
    for (const ZFXUnicodeString& shared : {ZFXUnicodeString("Träger.1"), Repeated('.', 100)}) {
        ZFXListValZFXUnicodeString names;
        names.Append(shared);
        const ZFXListValZFXUnicodeString& list = names;
        OnFourThreads([&](int thread) {
            ZFXUnicodeString copy(shared);
            EXPECT_STREQ(copy.ConvertToChar(), shared.ConvertToChar()); // the first thread converts
            EXPECT_EQ(copy.Append("x").Compare(shared), 0);
            ZFXListValZFXUnicodeString own(list);
            own.Append(ZFXUnicodeString(ZFXUnicodeChar('a'), static_cast<std::size_t>(thread)));
            EXPECT_EQ(own[1], list[1]);
            EXPECT_EQ(own[2].GetLengthInChar() + list.Size(), thread + 1);
        });
    }
}

TEST(Threads, EachHasItsOwnRegistryOfErrors) {
    std::vector<HRESULT> last(4);
    OnFourThreads([&](int thread) {
        ZFXUnicodeString name(thread % 2 == 0 ? "1st" : "a.b");
        const HRESULT code = QVRNameUtil::IsNameValid(name, 1);
        last[static_cast<std::size_t>(thread)] = code;
        EXPECT_EQ(ResultText(code), thread % 2 == 0 ? "LeadingDigitERR_01" : "IllegalCharERR_01 -100");
        EXPECT_GT(ZFXError::ZFXGetLastError(code, nullptr)->GetNLSMessage().GetLengthInChar(), 20);
    });
    for (const HRESULT code : last)
        EXPECT_EQ(ZFXError::ZFXGetLastError(code, nullptr), nullptr) << "another thread's error";
}

} // namespace
