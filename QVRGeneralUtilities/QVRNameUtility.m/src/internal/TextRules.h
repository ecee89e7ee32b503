#pragma once

#include "internal/Decision.h"
#include "internal/NameRules.h"

#include <array>
#include <optional>

/// The rules for the text of a name.
namespace TextRules {

/// Appends every unit of `name` above the limit, each followed by two spaces, to `list` and removes the last space.
/// Returns false if there is no such unit. `list` may be the same object as `name`.
bool AppendUnitsAbove(char16_t limit, const ZFXUnicodeString& name, ZFXUnicodeString& list);

[[nodiscard]] inline std::optional<MessageId> BrokenByLength(const ZFXUnicodeString& name) noexcept {
    if (name.IsNull() != 0)
        return MessageId::NameLengthERR_02;
    if (name.GetLengthInChar() > NameRules::MaxNameLength)
        return MessageId::NameLengthERR_01;
    return std::nullopt;
}

[[nodiscard]] inline std::optional<MessageId> BrokenByFirstCharacter(const ZFXUnicodeString& name) noexcept {
    return name[0].IsDigit() != 0 ? std::optional(MessageId::LeadingDigitERR_01) : std::nullopt;
}

[[nodiscard]] inline std::optional<MessageId> BrokenByReservedCharacter(const ZFXUnicodeString& name) noexcept {
    const bool isBroken = NameRules::Breaks(name, NameRules::kReservedInNames);
    return isBroken ? std::optional(MessageId::IllegalCharERR_01) : std::nullopt;
}

/// Returns the rules of IsNameValid that a name breaks, in the order of IsNameValid; nothing for a rule that it keeps.
[[nodiscard]] inline std::array<std::optional<MessageId>, 3> BrokenRules(const ZFXUnicodeString& name,
                                                                         bool checkFirstCharacter) noexcept {
    return {BrokenByLength(name), checkFirstCharacter ? BrokenByFirstCharacter(name) : std::nullopt,
            BrokenByReservedCharacter(name)};
}

/// Returns the decision of DoesNameContainDoubleByteChar.
[[nodiscard]] inline Decision AboveLatin1(const ZFXUnicodeString& name) {
    ZFXUnicodeString offending;
    if (!AppendUnitsAbove(0xFF, name, offending))
        return {};
    return {.rule = MessageId::DoubleByteCharErr_01, .parameter = offending};
}

} // namespace TextRules
