#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// The bytes of one input, taken from the front as what a target needs. When they are spent everything is zero or
/// empty. Printable characters stand for themselves, so that an input can be written and read by people.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* bytes, std::size_t count) : m_bytes(reinterpret_cast<const char*>(bytes), count) {}

    bool IsSpent() const noexcept { return m_bytes.empty(); }
    /// A number below n, which is at most 256, from one byte: '0' gives 0.
    int Below(int n) noexcept { return static_cast<unsigned char>(Byte() - '0') % n; }
    bool Flag() noexcept { return Below(2) != 0; }
    /// A number that is small, or one of those at which something may turn over.
    int Number() noexcept;
    /// A text of names: ASCII mostly, with units and phrases about which some rule has an opinion. One byte tells how
    /// many more make it: ' ' none, '!' one ...
    std::u16string Text();
    /// The same number of bytes as they are.
    std::string Narrow();

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
