#include "internal/Numbering.h"

#include "QVRGenI18NUtils.h"
#include "text/DecimalText.h"

#include <cassert>
#include <cstring>
#include <tuple>

namespace Numbering {

int NumberAfter(const ZFXUnicodeString& base, const ZFXUnicodeString& name) noexcept {
    const std::u16string_view units = base.Units();
    std::u16string_view rest = name.Units();
    // memcmp compares many bytes per step, the comparison of string views one unit.
    if (rest.size() < units.size() || std::memcmp(rest.data(), units.data(), units.size() * sizeof(char16_t)) != 0)
        return 0;
    rest.remove_prefix(units.size());
    return DecimalText::Read(rest).value_or(0);
}

ZFXUnicodeString NumberedName(const ZFXUnicodeString& base, int number) {
    ZFXUnicodeString digits;
    digits.BuildFromNum(number, "%d");
    return base + digits;
}

ZFXUnicodeString DistinctName(const ZFXUnicodeString& name, int earlierUses) {
    assert(earlierUses >= 0);
    return earlierUses > 0 ? NumberedName(name + "-", earlierUses) : name;
}

ZFXUnicodeString IssueGenericName(const ZFXUnicodeString& genericName) {
    QVRGenI18NUtils* utils = QVRGenI18NUtils::Instance();
    int earlierUses = 0;
    std::ignore = utils->FindNameAndNextID(genericName, earlierUses);
    std::ignore = utils->PushNameToList(genericName);
    return DistinctName(genericName, earlierUses);
}

} // namespace Numbering
