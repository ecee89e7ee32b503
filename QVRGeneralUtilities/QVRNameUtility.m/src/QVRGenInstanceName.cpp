#include "QVRGenInstanceName.h"

#include "QVRGenZFXUnicodeStringUtils.h"
#include "QVRNameUtil.h"
#include "analysis/ZFXIAlias.h"
#include "analysis/ZFXISamExplicit.h"
#include "internal/GenericEnglishNames.h"
#include "internal/Numbering.h"

#include <tuple>
#include <utility>

namespace {

using Utils = QVRGenZFXUnicodeStringUtils;

constexpr const char* kOrphanMeshPrefix = "OrphanMesh-";
constexpr const char* kTagMarker = "INSTANCE";

/// Reads the integer tag that the platform stores for a mesh part.
[[nodiscard]] HRESULT ReadTag(const ZFXIMSHMeshPart_var& meshPart, int& tag) {
    const ZFXISamExplicit_var explicitPart(meshPart);
    ZFXAnalysisExplicitChild child;
    if (explicitPart == nullptr || Failed(explicitPart->GetExplicitChild(child, 1)))
        return E_FAIL;
    return child.GetTag(tag);
}

/// Returns the text after the last colon; the whole text if there is no colon or nothing after it. Then, if a colon
/// exists and is not the first character, removes the first character, which is usually a space.
ZFXUnicodeString WithoutColonPrefix(const ZFXUnicodeString& display) {
    const int colon = display.SearchSubString(":", 0, ZFXUnicodeString::SearchBackward);
    const int rest = display.GetLengthInChar() - colon - 1;
    ZFXUnicodeString base = colon >= 0 && rest >= 1 ? display.SubString(colon + 1, rest) : display;
    if (colon > 0)
        base.Remove(0, 1);
    return base;
}

/// Removes spaces at the start, and spaces and underscores in any order at the end. Keeps other white space.
ZFXUnicodeString Trimmed(const ZFXUnicodeString& text) {
    ZFXUnicodeString trimmed(text);
    ZFXUnicodeString before;
    do {
        before = trimmed;
        trimmed = Utils::RemoveTrailingUnderscores(Utils::RemoveTrailingSpaces(Utils::RemoveLeadingSpaces(before)));
    } while (trimmed != before);
    return trimmed;
}

/// Removes or replaces the characters that the solver deck does not allow in a name, and trims it.
ZFXUnicodeString CleanedName(const ZFXUnicodeString& base) {
    const ZFXUnicodeString trimmed = Trimmed(Utils::RemoveLeadingUnderscores(Utils::RemoveDoubleQuotes(base)));
    return Utils::ReplaceBackslashWithForwardslash(Utils::ReplacePeriodWithDash(trimmed));
}

ZFXUnicodeString DeckName(const char* word, int tag, const ZFXUnicodeString& base) {
    ZFXUnicodeString name = Numbering::NumberedName(word, tag);
    if (base.IsNull() == 0)
        name.Append("-").Append(base);
    return Utils::TrucateToLegalLength(name);
}

HRESULT SetDeckNames(const ZFXIMSHMeshPart_var& meshPart, GenericEnglishNames& genericNames,
                     ZFXUnicodeString& instanceName, ZFXUnicodeString& partName) {
    int tag = 0;
    const HRESULT tagged = ReadTag(meshPart, tag);
    if (Failed(tagged))
        return tagged;
    const ZFXIAlias_var alias(meshPart);
    if (alias == nullptr)
        return E_FAIL;
    const ZFXUnicodeString display = alias->GetAlias();
    if (display.SearchSubString(kOrphanMeshPrefix, 0, ZFXUnicodeString::SearchForward) == 0) {
        instanceName = partName = display.SubString(ZFXUnicodeString(kOrphanMeshPrefix).GetLengthInChar(), -1);
        return S_OK;
    }
    ZFXUnicodeString base;
    ZFXUnicodeString offending;
    if (Failed(QVRNameUtil::DoesNameContainDoubleByteChar(display, offending))) {
        const HRESULT code = genericNames.Of(ZFXISpecObject_var(meshPart), base);
        if (Failed(code))
            return code;
    } else {
        base = WithoutColonPrefix(display);
    }
    base = CleanedName(base);
    instanceName = DeckName("Instance", tag, base);
    partName = DeckName("Part", tag, base);
    return S_OK;
}

} // namespace

QVRGenInstanceName& QVRGenInstanceName::operator=(const QVRGenInstanceName&) = default;

HRESULT QVRGenInstanceName::GetUniqueLegalInstanceName(const ZFXIMSHMeshPart_var& meshPart,
                                                       ZFXUnicodeString& instanceName,
                                                       ZFXUnicodeString& partName) noexcept {
    GenericEnglishNames genericNames;
    return SetDeckNames(meshPart, genericNames, instanceName, partName);
}

HRESULT QVRGenInstanceName::GetUniqueLegalInstanceNames(const ZFXListVal<ZFXIMSHMeshPart_var>& meshParts,
                                                        ZFXListVal<QVRMeshPartNames>& names) noexcept {
    GenericEnglishNames genericNames;
    names.Reserve(names.Size() + meshParts.Size());
    for (const ZFXIMSHMeshPart_var& meshPart : meshParts) {
        QVRMeshPartNames row;
        row.code = SetDeckNames(meshPart, genericNames, row.instanceName, row.partName);
        names.Append(std::move(row));
    }
    return S_OK;
}

HRESULT QVRGenInstanceName::GetUniqueLegalInstanceTag(int& tag, const ZFXUnicodeString& name) noexcept {
    const int marker = name.SearchSubString(kTagMarker, 0, ZFXUnicodeString::SearchForward);
    if (marker == -1) {
        tag = -1;
        return E_FAIL;
    }
    const ZFXUnicodeString rest = name.SubString(marker + ZFXUnicodeString(kTagMarker).GetLengthInChar(), -1);
    const int dash = rest.SearchSubString("-", 0, ZFXUnicodeString::SearchForward);
    std::ignore = rest.SubString(0, dash).ConvertToNum(&tag, "%d"); // keeps `tag` if this is no number
    return S_OK;
}
