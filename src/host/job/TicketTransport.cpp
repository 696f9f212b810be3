#include "host/job/TicketTransport.h"

#include <zlib.h>

#include <array>
#include <map>

namespace kesta::host {
namespace {

constexpr QByteArrayView kVersion = "kt1";
constexpr qsizetype kRoomForHeader = 64;
constexpr int kMostPieces = kMaximumTicketOptions / kMaximumTicketOption;

// What every piece says about the whole.
struct Header {
    int count = 0;
    qsizetype bytes = 0;
    quint32 checksum = 0;

    bool operator==(const Header&) const = default;
};

struct Piece {
    Header header;
    int index = 0;
    QByteArray text;
};

quint32 Checksum(const QByteArray& bytes)
{
    return static_cast<quint32>(crc32_z(0, reinterpret_cast<const Bytef*>(bytes.constData()), bytes.size()));
}

QByteArray Compress(const QByteArray& bytes)
{
    uLongf size = compressBound(bytes.size());
    QByteArray compressed(static_cast<qsizetype>(size), Qt::Uninitialized);
    const int status = compress2(reinterpret_cast<Bytef*>(compressed.data()), &size,
                                 reinterpret_cast<const Bytef*>(bytes.constData()), bytes.size(), Z_BEST_COMPRESSION);
    compressed.resize(status == Z_OK ? static_cast<qsizetype>(size) : 0);
    return compressed;
}

// Writes no more than the announced size, whatever the compressed bytes hold; empty when they do not hold exactly that.
QByteArray Uncompress(const QByteArray& compressed, qsizetype announced)
{
    QByteArray bytes(announced, Qt::Uninitialized);
    uLongf size = bytes.size();
    uLong used = compressed.size();
    const int status = uncompress2(reinterpret_cast<Bytef*>(bytes.data()), &size,
                                   reinterpret_cast<const Bytef*>(compressed.constData()), &used);
    const bool whole = status == Z_OK && qsizetype(size) == announced && qsizetype(used) == compressed.size();
    return whole ? bytes : QByteArray();
}

QByteArray WritePiece(const Header& header, int index, QByteArrayView text)
{
    return kVersion.toByteArray() + '-' + QByteArray::number(index) + '-' + QByteArray::number(header.count) + '-' +
           QByteArray::number(header.bytes) + '-' + QByteArray::number(header.checksum, 16) + '-' + text.toByteArray();
}

std::optional<Piece> ReadPiece(const QByteArray& value)
{
    // The text itself may hold dashes.
    qsizetype start = 0;
    std::array<QByteArray, 5> fields;
    for (QByteArray& field : fields) {
        const qsizetype end = value.indexOf('-', start);
        if (end < 0)
            return std::nullopt;
        field = value.mid(start, end - start);
        start = end + 1;
    }
    std::array<bool, 4> good{};
    Piece piece;
    piece.index = fields[1].toInt(&good[0]);
    piece.header.count = fields[2].toInt(&good[1]);
    piece.header.bytes = fields[3].toLongLong(&good[2]);
    piece.header.checksum = fields[4].toUInt(&good[3], 16);
    piece.text = value.mid(start);
    const bool numbers = good == std::array{true, true, true, true};
    return fields[0] == kVersion && numbers ? std::optional(piece) : std::nullopt;
}

bool IsSane(const Header& header)
{
    return header.count >= 1 && header.count <= kMostPieces && header.bytes >= 1 && header.bytes <= kMaximumTicket;
}

DecodedTicket Fault(const QString& problem)
{
    return {{}, problem};
}

// The values of the ticket's options, by the number in their names.
std::map<int, QByteArray> TicketOptions(const JobOptions& options)
{
    std::map<int, QByteArray> values;
    for (const JobOption& option : options) {
        bool isNumber = false;
        const int number = option.name.startsWith(QLatin1StringView(kTicketOptionPrefix))
                               ? option.name.sliced(qsizetype(sizeof(kTicketOptionPrefix) - 1)).toInt(&isNumber)
                               : 0;
        if (isNumber)
            values.emplace(number, option.value.toLatin1());
    }
    return values;
}

} // namespace

EncodedTicket EncodeTicket(const QByteArray& propertyList)
{
    if (propertyList.isEmpty() || propertyList.size() > kMaximumTicket)
        return {{}, Say("Ticket Empty Or Large", kMaximumTicket >> 20)};
    const QByteArray text =
        Compress(propertyList).toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
    constexpr qsizetype kTextAnOption = kMaximumTicketOption - kRoomForHeader;
    const int count = int((text.size() + kTextAnOption - 1) / kTextAnOption);
    if (count > kMostPieces)
        return {{}, Say("Ticket Too Large", (text.size() + 1023) / 1024, kMostPieces * kTextAnOption / 1024)};
    const Header header{count, propertyList.size(), Checksum(propertyList)};
    EncodedTicket encoded;
    for (int i = 0; i < count; ++i) {
        const QByteArray piece = WritePiece(header, i + 1, text.mid(i * kTextAnOption, kTextAnOption));
        encoded.options.push_back(
            {QLatin1StringView(kTicketOptionPrefix) + QString::number(i + 1), QString::fromLatin1(piece)});
    }
    return encoded;
}

DecodedTicket DecodeTicket(const JobOptions& options)
{
    const std::map<int, QByteArray> values = TicketOptions(options);
    if (values.empty())
        return Fault(QStringLiteral("the options hold no ticket (%1N)").arg(QLatin1StringView(kTicketOptionPrefix)));
    const std::optional<Piece> first = ReadPiece(values.begin()->second);
    if (!first || !IsSane(first->header))
        return Fault(QStringLiteral("the ticket's first option is damaged"));
    QByteArray text;
    for (int index = 1; index <= first->header.count; ++index) {
        const auto value = values.find(index);
        if (value == values.end())
            return Fault(QStringLiteral("piece %1 of %2 of the ticket is missing").arg(index).arg(first->header.count));
        const std::optional<Piece> piece = ReadPiece(value->second);
        if (!piece || piece->index != index || piece->header != first->header)
            return Fault(QStringLiteral("piece %1 of %2 of the ticket is damaged").arg(index).arg(first->header.count));
        text += piece->text;
    }
    if (qsizetype(values.size()) != first->header.count || text.size() > kMaximumTicketOptions)
        return Fault(QStringLiteral("the ticket has more pieces or text than it says"));
    const auto compressed = QByteArray::fromBase64Encoding(
        text, QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals | QByteArray::AbortOnBase64DecodingErrors);
    const QByteArray bytes = compressed ? Uncompress(*compressed, first->header.bytes) : QByteArray();
    if (bytes.isEmpty() || Checksum(bytes) != first->header.checksum)
        return Fault(QStringLiteral("the ticket is damaged: its checksum does not fit"));
    return {bytes, {}};
}

} // namespace kesta::host
