#pragma once

#include "files/FileErrors.h"

#include <cstddef>
#include <string>

/// All that a file gives. `size` is what it is said to hold, 0 when it does not tell; `read` puts up to so many bytes
/// into a place and answers how many, 0 at the end. BadInput when there are too many.
template <class Read>
std::string AllBytes(const std::string& path, std::size_t size, Read read) {
    if (size > kLargestDocument)
        RefuseSize(path);
    std::string bytes;
    std::size_t length = 0;
    for (;;) {
        // One byte more than is expected, so that the second read tells the end.
        const std::size_t room = length == 0 ? size + 1 : std::size_t{1} << 20;
        bytes.resize(length + room);
        const std::size_t got = read(bytes.data() + length, room);
        length += got;
        if (length > kLargestDocument)
            RefuseSize(path);
        if (got == 0)
            break;
    }
    bytes.resize(length);
    return bytes;
}
