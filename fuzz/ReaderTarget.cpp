// Any bytes are either a document, whose names can be checked without leaving references behind, or one clear error.

#include "ExitCode.h"
#include "Operations.h"
#include "QVRGenI18NUtils.h"
#include "QVRNameUtil.h"
#include "document/LoadedDocument.h"

namespace {

/// Checks that an error is one line with a message.
void ExpectClear(const std::string& message) {
    ExpectThat(message.size() > 10, "an error has a message");
    ExpectThat(message.find('\n') == std::string::npos, "an error is one line");
}

void CheckAll(LoadedDocument& loaded) {
    for (std::size_t i = 0; i < loaded.entries.size(); ++i) {
        const DocumentEntry& entry = loaded.entries[i];
        ExpectThat(i == 0 || entry.parent < i, "a parent comes before the objects below it");
        ZFXISpecObject_var feature(entry.feature);
        ZFXUnicodeString name;
        QVRNameUtil::CheckName(feature, name, 1);
        QVRGenI18NUtils::Instance()->GetGenericEnglishFeatureName(feature, name);
        CountOperations(2);
    }
    QVRGenI18NUtils::Instance()->ResetAllLists();
    ExpectSame(loaded.model.References(), 0, "a reference was not released");
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
    ForgetErrors();
    return 0;
}
