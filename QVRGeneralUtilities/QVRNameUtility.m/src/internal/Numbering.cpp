#include "internal/Numbering.h"

#include "text/DecimalText.h"

#include <cstring>

namespace Numbering {

int NumberAfter(const ZFXUnicodeString& base, const ZFXUnicodeString& name) noexcept {
    const std::u16string_view units = base.Units();
    std::u16string_view rest = name.Units();
    // Bytes are compared many at a time, units one by one.
    if (rest.size() < units.size() || std::memcmp(rest.data(), units.data(), units.size() * sizeof(char16_t)) != 0)
        return 0;
    rest.remove_prefix(units.size());
    return DecimalText::Read(rest).value_or(0);
}

ZFXUnicodeString Numbered(const ZFXUnicodeString& base, int number) {
    ZFXUnicodeString digits;
    digits.BuildFromNum(number, "%d");
    return base + digits;
}

} // namespace Numbering
