#include "ReferenceText.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace Reference {
namespace {

int Length(View text) { return static_cast<int>(text.size()); }

bool IsHigh(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLow(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

/// The well-formed UTF-8 sequences, as in the table of the Unicode standard: ranges of the first and of the second
/// byte. All further bytes are 80 to BF.
struct Sequence {
    unsigned first, last, secondFirst, secondLast;
    std::size_t bytes;
};
constexpr Sequence kSequences[] = {
    {0x00, 0x7F, 0, 0, 1},       {0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3},
    {0xE1, 0xEC, 0x80, 0xBF, 3}, {0xED, 0xED, 0x80, 0x9F, 3}, {0xEE, 0xEF, 0x80, 0xBF, 3},
    {0xF0, 0xF0, 0x90, 0xBF, 4}, {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4},
};

/// Returns the length of the well-formed sequence at the start, or 0 if there is none.
std::size_t WellFormed(std::string_view bytes) {
    const auto at = [&](std::size_t i) { return static_cast<unsigned>(static_cast<unsigned char>(bytes[i])); };
    for (const Sequence& s : kSequences) {
        if (at(0) < s.first || at(0) > s.last || bytes.size() < s.bytes)
            continue;
        if (s.bytes > 1 && (at(1) < s.secondFirst || at(1) > s.secondLast))
            continue;
        bool good = true;
        for (std::size_t i = 2; i < s.bytes; ++i)
            good = good && at(i) >= 0x80 && at(i) <= 0xBF;
        if (good)
            return s.bytes;
    }
    return 0;
}

} // namespace

Text Stripped(View text, char16_t unit, End end) {
    Text result(text);
    if (end == Everywhere) {
        std::erase(result, unit);
        return result;
    }
    while ((end & Leading) != 0 && !result.empty() && result.front() == unit)
        result.erase(0, 1);
    while ((end & Trailing) != 0 && !result.empty() && result.back() == unit)
        result.pop_back();
    return result;
}

Text Replaced(View text, View old, View by) {
    Text result;
    while (!text.empty()) {
        if (!old.empty() && BeginsWith(text, old)) {
            result += by;
            text.remove_prefix(old.size());
        } else {
            result += text.front();
            text.remove_prefix(1);
        }
    }
    return result;
}

Text Replaced(View text, int start, int count, View by) {
    Text result;
    const Text part = Substring(text, start, count);
    const int from = std::min(std::max(start, 0), Length(text));
    for (int i = 0; i < from; ++i)
        result += text[static_cast<std::size_t>(i)];
    result += by;
    for (int i = from + Length(part); i < Length(text); ++i)
        result += text[static_cast<std::size_t>(i)];
    return result;
}

Text Substring(View text, int start, int count) {
    Text result;
    for (std::int64_t i = std::max(start, 0), left = count; i < Length(text) && left != 0; ++i, --left)
        result += text[static_cast<std::size_t>(i)];
    return result;
}

int FindFirst(View text, View sub, int start) {
    for (int i = std::min(std::max(start, 0), Length(text)); i + Length(sub) <= Length(text); ++i)
        if (Substring(text, i, Length(sub)) == sub)
            return i;
    return -1;
}

int FindLast(View text, View sub, int start) {
    int last = -1;
    for (int i = std::min(std::max(start, 0), Length(text)); i + Length(sub) <= Length(text); ++i)
        if (Substring(text, i, Length(sub)) == sub)
            last = i;
    return last;
}

bool BeginsWith(View text, View sub) { return Substring(text, 0, Length(sub)) == sub; }

bool ContainsAny(View text, View anyOf) {
    for (const char16_t unit : text)
        for (const char16_t wanted : anyOf)
            if (unit == wanted)
                return true;
    return false;
}

std::optional<int> NumberAtFront(View text) {
    while (!text.empty() && ContainsAny(text.substr(0, 1), u" \t\n\v\f\r"))
        text.remove_prefix(1);
    const bool negative = BeginsWith(text, u"-");
    if (negative || BeginsWith(text, u"+"))
        text.remove_prefix(1);
    Text digits;
    for (const char16_t unit : text) {
        if (unit < u'0' || unit > u'9')
            break;
        digits += unit;
    }
    if (digits.empty())
        return std::nullopt;
    digits = Stripped(digits, u'0', Leading);
    if (digits.size() > 10)
        return std::nullopt;
    std::int64_t value = 0;
    for (const char16_t digit : digits)
        value = 10 * value + (negative ? -(digit - u'0') : digit - u'0');
    if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max())
        return std::nullopt;
    return static_cast<int>(value);
}

Text ToDecimal(int number) {
    Text text;
    for (const char c : std::to_string(number))
        text += static_cast<char16_t>(c);
    return text;
}

std::vector<Text> Characters(View text) {
    std::vector<Text> characters;
    while (!text.empty()) {
        const std::size_t units = text.size() > 1 && IsHigh(text[0]) && IsLow(text[1]) ? 2 : 1;
        characters.emplace_back(text.substr(0, units));
        text.remove_prefix(units);
    }
    return characters;
}

std::string Utf8Of(View text) {
    std::string bytes;
    const auto put = [&](std::uint32_t byte) { bytes += static_cast<char>(static_cast<unsigned char>(byte)); };
    for (const Text& character : Characters(text)) {
        std::uint32_t code = character[0];
        if (character.size() == 2)
            code = 0x10000U + (code - 0xD800U) * 0x400U + (character[1] - 0xDC00U);
        else if (IsHigh(character[0]) || IsLow(character[0]))
            code = 0xFFFD;
        if (code < 0x80) {
            put(code);
        } else if (code < 0x800) {
            put(0xC0 + code / 0x40);
            put(0x80 + code % 0x40);
        } else if (code < 0x10000) {
            put(0xE0 + code / 0x1000);
            put(0x80 + code / 0x40 % 0x40);
            put(0x80 + code % 0x40);
        } else {
            put(0xF0 + code / 0x40000);
            put(0x80 + code / 0x1000 % 0x40);
            put(0x80 + code / 0x40 % 0x40);
            put(0x80 + code % 0x40);
        }
    }
    return bytes;
}

Text FromUtf8(std::string_view bytes) {
    Text text;
    while (!bytes.empty()) {
        const std::size_t taken = WellFormed(bytes);
        const auto front = static_cast<unsigned char>(bytes.front());
        std::uint32_t code = taken == 0 ? 0xFFFDU : taken == 1 ? front : front & (0x7FU >> taken);
        for (std::size_t i = 1; i < taken; ++i)
            code = code * 0x40U + (static_cast<unsigned char>(bytes[i]) - 0x80U);
        if (code >= 0x10000) {
            text += static_cast<char16_t>(0xD800U + (code - 0x10000U) / 0x400U);
            text += static_cast<char16_t>(0xDC00U + (code - 0x10000U) % 0x400U);
        } else {
            text += static_cast<char16_t>(code);
        }
        bytes.remove_prefix(std::max(taken, std::size_t{1}));
    }
    return text;
}

Text LoweredAscii(View text) {
    Text lowered(text);
    for (char16_t& unit : lowered)
        if (unit >= u'A' && unit <= u'Z')
            unit = static_cast<char16_t>(unit + 32);
    return lowered;
}

} // namespace Reference
