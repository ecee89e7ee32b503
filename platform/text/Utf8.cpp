#include "text/Utf8.h"

#include "text/Surrogates.h"

#include <cassert>

namespace Utf8 {
namespace {

struct Lead {
    int bytes;
    std::uint32_t bits;
    std::uint32_t least; // a smaller code needs fewer bytes and is ill-formed
};

Lead LeadOf(unsigned char byte) noexcept {
    if ((byte & 0xE0) == 0xC0)
        return {2, byte & 0x1FU, 0x80};
    if ((byte & 0xF0) == 0xE0)
        return {3, byte & 0x0FU, 0x800};
    if ((byte & 0xF8) == 0xF0)
        return {4, byte & 0x07U, 0x10000};
    return {0, 0, 0};
}

} // namespace

Decoded First(std::string_view text) noexcept {
    assert(!text.empty());
    const auto front = static_cast<unsigned char>(text.front());
    if (front < 0x80)
        return {front, 1};
    const Lead lead = LeadOf(front);
    if (lead.bytes == 0 || text.size() < static_cast<std::size_t>(lead.bytes))
        return {kReplacement, 1};
    std::uint32_t code = lead.bits;
    for (int i = 1; i < lead.bytes; ++i) {
        const auto byte = static_cast<unsigned char>(text[static_cast<std::size_t>(i)]);
        if ((byte & 0xC0) != 0x80)
            return {kReplacement, 1};
        code = (code << 6) | (byte & 0x3FU);
    }
    if (code < lead.least || code > 0x10FFFF || Surrogates::IsHalf(code))
        return {kReplacement, 1};
    return {code, lead.bytes};
}

std::size_t ToUtf16(std::string_view text, char16_t* units) noexcept {
    std::size_t count = 0;
    const auto put = [&](char16_t unit) {
        if (units != nullptr)
            units[count] = unit;
        ++count;
    };
    while (!text.empty()) {
        const Decoded c = First(text);
        text.remove_prefix(static_cast<std::size_t>(c.bytes));
        if (c.code < Surrogates::kFirstCode) {
            put(static_cast<char16_t>(c.code));
            continue;
        }
        put(Surrogates::HighOf(c.code));
        put(Surrogates::LowOf(c.code));
    }
    return count;
}

std::size_t FromUtf16(std::u16string_view text, char* bytes) noexcept {
    std::size_t count = 0;
    const auto put = [&](std::uint32_t byte) {
        if (bytes != nullptr)
            bytes[count] = static_cast<char>(byte);
        ++count;
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t code = text[i];
        if (Surrogates::IsHalf(code)) {
            const bool isPair = i + 1 < text.size() && Surrogates::IsPair(text[i], text[i + 1]);
            code = isPair ? Surrogates::Decode(text[i], text[i + 1]) : kReplacement;
            i += isPair ? 1 : 0;
        }
        if (code < 0x80) {
            put(code);
            continue;
        }
        const int trail = code < 0x800 ? 1 : code < Surrogates::kFirstCode ? 2 : 3;
        constexpr std::uint32_t kMarks[] = {0, 0xC0, 0xE0, 0xF0};
        put(kMarks[trail] | (code >> (6 * trail)));
        for (int shift = 6 * (trail - 1); shift >= 0; shift -= 6)
            put(0x80U | ((code >> shift) & 0x3FU));
    }
    return count;
}

} // namespace Utf8
