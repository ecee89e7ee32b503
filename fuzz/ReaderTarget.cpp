// Parses any bytes as a document. Either the names of the document can be checked without a leaked reference, or the
// reader reports one error of one line.

#include "BadInput.h"
#include "Expectations.h"
#include "QVRGenI18NUtils.h"
#include "QVRNameUtil.h"
#include "document/LoadedDocument.h"

namespace {

/// Checks that an error is one line with a message.
void ExpectClear(const std::string& message) {
    ExpectTrue(message.size() > 10, "an error has a message");
    ExpectTrue(message.find('\n') == std::string::npos, "an error is one line");
}

void CheckAll(LoadedDocument& loaded) {
    for (std::size_t i = 0; i < loaded.entries.size(); ++i) {
        const DocumentEntry& entry = loaded.entries[i];
        ExpectTrue(i == 0 || entry.parent < i, "a parent is listed before its children");
        ZFXISpecObject_var feature(entry.feature);
        ZFXUnicodeString name;
        QVRNameUtil::CheckName(feature, name, 1);
        QVRGenI18NUtils::Instance()->GetGenericEnglishFeatureName(feature, name);
        CountOperations(2);
    }
    QVRGenI18NUtils::Instance()->ResetAllLists();
    ExpectEqual(loaded.model.References(), 0, "a reference was not released");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    CountOperations(1);
    try {
        LoadedDocument loaded(std::string(reinterpret_cast<const char*>(bytes), count));
        CheckAll(loaded);
    } catch (const BadInput& refused) {
        ExpectClear(refused.what());
    }
    OverwriteRegisteredErrors();
    return 0;
}
