#pragma once

#include "memory-model/MemoryModel.h"
#include "support/Results.h"

#include <gtest/gtest.h>

/// A test on a document. At its end, no reference on an object of the document may be left, and the model may not have
/// rejected an argument.
struct DocumentTest : ::testing::Test {
    void TearDown() override {
        EXPECT_EQ(model.References(), 0) << "a reference was not released";
        EXPECT_STREQ(model.FirstUnexpectedArgument(), "") << "a request was made with an unexpected argument";
    }

    static ZFXListValZFXBaseUnknown_var MakeList(const std::vector<MemoryFeature>& features) {
        ZFXListValZFXBaseUnknown_var list;
        for (const MemoryFeature& feature : features)
            list.Append(ZFXBaseUnknown_var(feature));
        return list;
    }
    /// Calls an operation on a text. Returns its code and, if the operation changed the text, "|" and the new text.
    template <class Operation>
    static std::string Call(const ZFXUnicodeString& before, Operation operation) {
        ZFXUnicodeString text(before);
        const HRESULT code = operation(text);
        return (code == kInjectedCode ? "code" : ResultText(code)) + (text == before ? "" : "|" + Narrow(text));
    }
    /// Calls an operation on a feature and a text.
    template <class Operation>
    static std::string Call(MemoryFeature feature, const ZFXUnicodeString& before, Operation operation) {
        ZFXISpecObject_var handle(feature);
        return Call(before, [&](ZFXUnicodeString& text) { return operation(handle, text); });
    }
    /// Renames a feature through its alias. Returns the stored name, "|" and the console line up to its first colon.
    static std::string Rename(MemoryFeature feature, const ZFXUnicodeString& name) {
        const std::string console = CapturedOutput([&] {
            if (const ZFXIAlias_var alias(feature); alias != nullptr)
                alias->SetAlias(name);
        });
        return Narrow(feature.StoredAlias()) + "|" + console.substr(0, console.find(':'));
    }

    MemoryModel model;
    MemoryDocument document = model.NewDocument();
    /// A code that no operation makes up, so that a test recognises a code that was passed on.
    static constexpr HRESULT kInjectedCode = static_cast<HRESULT>(0x80070057);
    static constexpr MemoryResponse kFailure{kInjectedCode, false};
    static constexpr MemoryResponse kFailureWithOutput{kInjectedCode, true};
    static constexpr MemoryResponse kSuccessWithoutOutput{S_OK, false};
};
