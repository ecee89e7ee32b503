#include "internal/Numbering.h"

#include "text/DecimalText.h"

namespace Numbering {

int NumberAfter(const ZFXUnicodeString& base, const ZFXUnicodeString& name) noexcept {
    std::u16string_view rest = name.Units();
    if (!rest.starts_with(base.Units()))
        return 0;
    rest.remove_prefix(base.Units().size());
    return DecimalText::Read(rest).value_or(0);
}

ZFXUnicodeString Numbered(const ZFXUnicodeString& base, int number) {
    ZFXUnicodeString digits;
    digits.BuildFromNum(number, "%d");
    return base + digits;
}

} // namespace Numbering
