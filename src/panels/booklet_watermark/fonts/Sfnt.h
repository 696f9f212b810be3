#pragma once

#include "platform/values/Types.h"

#include <QByteArrayView>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace kesta::booklet_watermark {

// Reads the big-endian numbers of a font file. Reading beyond the end gives 0 and is remembered.
class SfntReader {
public:
    explicit SfntReader(QByteArrayView font) : bytes_(reinterpret_cast<const std::uint8_t*>(font.data()), font.size())
    {
    }

    std::uint64_t size() const { return bytes_.size(); }
    bool holds(std::uint64_t offset, std::uint64_t length) const
    {
        return offset <= bytes_.size() && length <= bytes_.size() - offset;
    }
    bool hasReadBeyondEnd() const { return hasReadBeyondEnd_; }

    std::uint16_t u16(std::uint64_t offset)
    {
        const std::uint8_t* byte = at(offset, 2);
        return byte ? static_cast<std::uint16_t>(byte[0] << 8 | byte[1]) : std::uint16_t{0};
    }
    std::int16_t s16(std::uint64_t offset) { return static_cast<std::int16_t>(u16(offset)); }
    std::uint32_t u32(std::uint64_t offset)
    {
        const std::uint8_t* byte = at(offset, 4);
        return byte ? std::uint32_t{byte[0]} << 24 | byte[1] << 16 | byte[2] << 8 | byte[3] : 0;
    }

private:
    const std::uint8_t* at(std::uint64_t offset, std::uint64_t length)
    {
        if (holds(offset, length))
            return bytes_.data() + offset;
        hasReadBeyondEnd_ = true;
        return nullptr;
    }

    std::span<const std::uint8_t> bytes_;
    bool hasReadBeyondEnd_ = false;
};

// A table of a font file; the offset is in the file, the length is what the directory says.
struct SfntTable {
    std::uint32_t offset;
    std::uint32_t length;
};

// The first table of that name; nothing when there is none or it begins beyond the end of the file.
std::optional<SfntTable> find_table(FourCharCode tag, QByteArrayView font);

// The offsets of all tables in the order of the directory.
std::vector<std::uint32_t> TableOffsets(QByteArrayView font);

} // namespace kesta::booklet_watermark
