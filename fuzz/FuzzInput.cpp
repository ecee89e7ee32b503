#include "FuzzInput.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

constexpr int kEdges[] = {0,
                          1,
                          -1,
                          2,
                          31,
                          32,
                          33,
                          71,
                          72,
                          73,
                          80,
                          -2,
                          1000,
                          0xFFFF,
                          std::numeric_limits<int>::max(),
                          std::numeric_limits<int>::max() - 1,
                          std::numeric_limits<int>::min()};

/// White space, characters in and above Latin-1, letters with special case mappings, surrogates.
constexpr char16_t kUnits[] = {0x0085, 0x00A0, 0x00E9, 0x00C9, 0x00DF, 0x00FF, 0x0100, 0x0130, 0x0131, 0x017F,
                               0x03A3, 0x03C2, 0x03C3, 0x1E9E, 0x2003, 0x2028, 0x212A, 0x3000, 0xD7FF, 0xD800,
                               0xD801, 0xDBFF, 0xDC00, 0xDC28, 0xDC37, 0xDFFF, 0xE000, 0xFEFF, 0xFFFD, 0xFFFF};

constexpr std::u16string_view kPhrases[] = {
    u"Pressure-",  u"pressure-",   u"Job-",         u"JOB-",
    u"Step-",      u"OrphanMesh-", u"INSTANCE",     u"QVR",
    u"SAM",        u"LMS",         u"sam",          u"2147483647",
    u"2147483648", u"-2147483648", u"0000000",      u"99999999",
    u"  ",         u"__",          u"abcdefghijkl", u"\U00010400",
    u"\U00010428", u"\U0001E900",  u"Instance1",    u"0123456789012345678901234567890123456789",
};

} // namespace

int FuzzInput::Number() noexcept {
    const int kind = Below(64);
    if (kind < 10)
        return kind;
    return kind < 40 ? kEdges[static_cast<std::size_t>(kind) % std::size(kEdges)] : Below(256) - 128;
}

std::u16string FuzzInput::Text() {
    std::u16string text;
    for (int left = static_cast<unsigned char>(Byte() - ' ') % 96; left > 0 && !IsEmpty(); --left) {
        const unsigned char byte = Byte();
        if (byte < 0x80)
            text += static_cast<char16_t>(byte);
        else if (byte < 0xC0)
            text += kUnits[(byte - 0x80U) % std::size(kUnits)];
        else
            text += kPhrases[(byte - 0xC0U) % std::size(kPhrases)];
    }
    return text;
}

std::string FuzzInput::Bytes() {
    const auto wanted = static_cast<std::size_t>(static_cast<unsigned char>(Byte() - ' ') % 96);
    const std::string_view taken = m_bytes.substr(0, std::min(wanted, m_bytes.size()));
    m_bytes.remove_prefix(taken.size());
    return std::string(taken);
}
