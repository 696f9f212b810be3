#include "panels/booklet_watermark/fonts/Sfnt.h"

#include <algorithm>

namespace kesta::booklet_watermark {
namespace {

constexpr std::uint64_t kDirectory = 12;
constexpr std::uint64_t kRecordSize = 16;

// Those records of the directory that the file holds.
std::uint64_t CountRecords(SfntReader& font)
{
    const std::uint64_t room = font.size() > kDirectory ? (font.size() - kDirectory) / kRecordSize : 0;
    return std::min<std::uint64_t>(font.u16(4), room);
}

} // namespace

std::optional<SfntTable> find_table(FourCharCode tag, QByteArrayView font)
{
    SfntReader reader(font);
    const std::uint64_t count = CountRecords(reader);
    for (std::uint64_t record = kDirectory; record < kDirectory + count * kRecordSize; record += kRecordSize) {
        const SfntTable table{reader.u32(record + 8), reader.u32(record + 12)};
        if (reader.u32(record) == tag)
            return table.offset <= reader.size() ? std::optional(table) : std::nullopt;
    }
    return std::nullopt;
}

std::vector<std::uint32_t> TableOffsets(QByteArrayView font)
{
    SfntReader reader(font);
    std::vector<std::uint32_t> offsets(CountRecords(reader));
    for (std::uint64_t record = 0; record < offsets.size(); ++record)
        offsets[record] = reader.u32(kDirectory + record * kRecordSize + 8);
    return offsets;
}

} // namespace kesta::booklet_watermark
