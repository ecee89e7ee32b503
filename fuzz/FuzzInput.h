#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Decodes the bytes of one fuzz input, from front to back, into numbers and texts. At the end of the input, numbers
/// are 0 and texts are empty. ASCII characters of a text encode themselves, so that inputs can be written by hand.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* bytes, std::size_t count) : m_bytes(reinterpret_cast<const char*>(bytes), count) {}

    bool IsEmpty() const noexcept { return m_bytes.empty(); }
    /// Reads one byte and returns a number from 0 to n - 1. n is at most 256; the byte '0' returns 0.
    int Below(int n) noexcept { return static_cast<unsigned char>(Byte() - '0') % n; }
    bool Flag() noexcept { return Below(2) != 0; }
    /// Reads a number: a small one, or a boundary value such as 72 or the largest int.
    int Number() noexcept;
    /// Reads a text: ASCII characters, and units and phrases that a rule treats specially. The first byte is the number
    /// of bytes that follow: ' ' means 0, '!' means 1, and so on up to 95.
    std::u16string Text();
    /// Reads bytes as they are. Their number is encoded as for Text.
    std::string Bytes();

private:
    unsigned char Byte() noexcept {
        if (m_bytes.empty())
            return '0';
        const auto byte = static_cast<unsigned char>(m_bytes.front());
        m_bytes.remove_prefix(1);
        return byte;
    }

    std::string_view m_bytes;
};
