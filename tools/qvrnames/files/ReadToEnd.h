#pragma once

#include "files/FileErrors.h"

#include <cstddef>
#include <string>

/// Returns all bytes of an open file. Throws BadInput if there are more than kMaxDocumentBytes.
/// @param path  the name of the file in messages
/// @param expectedSize  the size that the system reports; 0 if unknown, as for a pipe
/// @param read  `std::size_t read(char* buffer, std::size_t capacity)`: reads up to `capacity` bytes and returns their
///              number, which is 0 at the end of the file only
template <class Read>
[[nodiscard]] std::string ReadToEnd(const std::string& path, std::size_t expectedSize, Read read) {
    if (expectedSize > kMaxDocumentBytes)
        ThrowTooLarge(path);
    std::string bytes;
    std::size_t length = 0;
    for (;;) {
        // One byte more than expected, so that a file of the expected size needs no further block.
        const std::size_t capacity = length == 0 ? expectedSize + 1 : std::size_t{1} << 20;
        bytes.resize(length + capacity);
        const std::size_t count = read(bytes.data() + length, capacity);
        length += count;
        if (length > kMaxDocumentBytes)
            ThrowTooLarge(path);
        if (count == 0)
            break;
    }
    bytes.resize(length);
    return bytes;
}
