#pragma once

#include "memory-model/MemoryModel.h"
#include "support/Results.h"

#include <gtest/gtest.h>

/// A test on a document. When it ends, no reference on an object of the document may be left, and the model may not have
/// rejected an argument.
class DocumentTest : public ::testing::Test {
protected:
    void TearDown() override {
        EXPECT_EQ(model.References(), 0) << "a reference was not released";
        EXPECT_STREQ(model.FirstUnexpectedArgument(), "") << "a request was made with an unexpected argument";
    }

    static ZFXListValZFXBaseUnknown_var ListOf(std::initializer_list<MemoryFeature> features) {
        ZFXListValZFXBaseUnknown_var list;
        for (const MemoryFeature& feature : features)
            list.Append(ZFXBaseUnknown_var(feature));
        return list;
    }

    MemoryModel model;
    MemoryDocument document = model.NewDocument();
    /// Answers that are neither the default failure nor E_FAIL, so that a code passed on is told from one
    /// made up.
    static constexpr HRESULT kCode = static_cast<HRESULT>(0x80070057);
    static constexpr MemoryResponse kFails{kCode, false};
    static constexpr MemoryResponse kFailsFilled{kCode, true};
    static constexpr MemoryResponse kEmpty{S_OK, false};
};
