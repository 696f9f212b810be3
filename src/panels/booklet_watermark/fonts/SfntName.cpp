#include "panels/booklet_watermark/fonts/SfntName.h"

#include "panels/booklet_watermark/fonts/Sfnt.h"

namespace kesta::booklet_watermark {
namespace {

constexpr std::uint16_t kPostScriptNameID = 6;
constexpr std::uint16_t kMacintoshPlatform = 1;
constexpr std::uint64_t kRecords = 6; // in the table, of 12 bytes each

// PostScript names are ASCII; the other platforms spend two bytes on a character.
QByteArray Text(QByteArrayView font, std::uint64_t offset, std::uint64_t length, std::uint64_t bytesInCharacter)
{
    QByteArray text;
    for (std::uint64_t at = offset + bytesInCharacter - 1; at < offset + length; at += bytesInCharacter)
        text += font[static_cast<qsizetype>(at)];
    return text;
}

} // namespace

std::optional<QByteArray> PostScriptName(QByteArrayView font)
{
    const auto table = find_table("name"_code, font);
    if (!table)
        return std::nullopt;
    SfntReader reader(font);
    const std::uint64_t start = table->offset;
    const std::uint64_t count = reader.u16(start + 2), texts = start + reader.u16(start + 4);
    for (std::uint64_t record = start + kRecords; record < start + kRecords + 12 * count; record += 12) {
        const std::uint64_t offset = texts + reader.u16(record + 10), length = reader.u16(record + 8);
        if (reader.u16(record + 6) == kPostScriptNameID && length > 0 && reader.holds(offset, length))
            return Text(font, offset, length, reader.u16(record) == kMacintoshPlatform ? 1 : 2);
    }
    return std::nullopt;
}

} // namespace kesta::booklet_watermark
