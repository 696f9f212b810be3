#pragma once

#include <QByteArrayView>

#include <cstdint>
#include <vector>

namespace kesta::booklet_watermark {

// At most what the strings of so many bytes take.
std::size_t RoomForStrings(std::size_t fontSize);

struct WrittenStrings {
    char* end;
    bool areComplete; // false: from some place on there was no boundary near enough
};

// Writes the bytes as hexadecimal PostScript strings with a pad byte each, cut only at boundaries, which stand in two
// lists in ascending order.
WrittenStrings WriteStrings(QByteArrayView font, const std::vector<std::uint64_t>& tables,
                            const std::vector<std::uint64_t>& glyphs, char* out);

} // namespace kesta::booklet_watermark
