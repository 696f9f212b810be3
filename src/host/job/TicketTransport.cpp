#include "host/job/TicketTransport.h"

#include "host/job/TicketPacking.h"

#include <QByteArrayList>

#include <zlib.h>

#include <array>
#include <map>

namespace kesta::host {
namespace {

constexpr QByteArrayView kVersion1 = "kt1";
constexpr QByteArrayView kVersion2 = "kt2";
constexpr qsizetype kRoomForHeader = 64;
constexpr int kMostPieces = kMaximumTicketOptions / kMaximumTicketOption;

// What every piece says about the whole.
struct Header {
    int version = 1;
    int count = 0;
    qsizetype bytes = 0;
    quint32 checksum = 0;
    int sealedParts = 0; // from version 2 on

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

TicketPacking PackingOf(const Header& header)
{
    return header.version == 1 ? TicketPacking::Zlib : TicketPacking::Bzip2;
}

QByteArray WritePiece(const Header& header, int index, QByteArrayView text)
{
    QByteArrayList fields{(header.version == 1 ? kVersion1 : kVersion2).toByteArray(), QByteArray::number(index),
                          QByteArray::number(header.count), QByteArray::number(header.bytes),
                          QByteArray::number(header.checksum, 16)};
    if (header.version > 1)
        fields << QByteArray::number(header.sealedParts);
    fields << text.toByteArray();
    return fields.join('-');
}

// Takes what stands before the next dash from the text; the rest may hold dashes, too.
QByteArrayView TakeField(QByteArrayView& text)
{
    const qsizetype end = text.indexOf('-');
    const QByteArrayView field = text.first(qMax<qsizetype>(end, 0));
    text = text.sliced(end + 1);
    return field;
}

std::optional<Piece> ReadPiece(const QByteArray& value)
{
    QByteArrayView rest = value;
    const QByteArrayView version = TakeField(rest);
    if (version != kVersion1 && version != kVersion2)
        return std::nullopt;
    std::array<bool, 5> good{};
    Piece piece;
    piece.header.version = version == kVersion1 ? 1 : 2;
    piece.index = TakeField(rest).toInt(&good[0]);
    piece.header.count = TakeField(rest).toInt(&good[1]);
    piece.header.bytes = TakeField(rest).toLongLong(&good[2]);
    piece.header.checksum = TakeField(rest).toUInt(&good[3], 16);
    piece.header.sealedParts = piece.header.version == 1 ? 0 : TakeField(rest).toInt(&good[4]);
    good[4] = good[4] || piece.header.version == 1;
    piece.text = rest.toByteArray();
    return good == std::array{true, true, true, true, true} ? std::optional(piece) : std::nullopt;
}

bool IsSane(const Header& header)
{
    return header.count >= 1 && header.count <= kMostPieces && header.bytes >= 1 && header.bytes <= kMaximumTicket &&
           (header.sealedParts == 0 || header.sealedParts == 1);
}

DecodedTicket Fault(const QString& problem)
{
    return {.problem = problem};
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

EncodedTicket EncodeTicket(const QByteArray& propertyList, int version, const QString& sealedPart)
{
    if (propertyList.isEmpty() || propertyList.size() > kMaximumTicket)
        return {.problem = Say("Ticket Empty Or Large", kMaximumTicket >> 20)};
    Header header{.version = version,
                  .bytes = propertyList.size(),
                  .checksum = Checksum(propertyList),
                  .sealedParts = sealedPart.isEmpty() ? 0 : 1};
    const QByteArray text = PackTicket(PackingOf(header), propertyList)
                                .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
    constexpr qsizetype kTextAnOption = kMaximumTicketOption - kRoomForHeader;
    const qsizetype room = kMostPieces * kTextAnOption - sealedPart.size();
    if (text.size() > room)
        return {.tooLarge = text.size(), .room = room};
    header.count = int((text.size() + kTextAnOption - 1) / kTextAnOption);
    EncodedTicket encoded;
    for (int i = 0; i < header.count; ++i) {
        const QByteArray piece = WritePiece(header, i + 1, text.mid(i * kTextAnOption, kTextAnOption));
        encoded.options.push_back(
            {QLatin1StringView(kTicketOptionPrefix) + QString::number(i + 1), QString::fromLatin1(piece)});
    }
    if (header.sealedParts > 0)
        encoded.options.push_back({QLatin1StringView(kTicketSealedOption), sealedPart});
    return encoded;
}

DecodedTicket DecodeTicket(const JobOptions& options)
{
    const std::map<int, QByteArray> values = TicketOptions(options);
    if (values.empty())
        return Fault(QStringLiteral("the options hold no ticket (%1N)").arg(QLatin1StringView(kTicketOptionPrefix)));
    const std::optional<Piece> first = ReadPiece(values.begin()->second);
    if (!first || !IsSane(first->header))
        return Fault(QStringLiteral("the ticket's first option is damaged or newer than this program"));
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
    const QByteArray bytes =
        compressed ? UnpackTicket(PackingOf(first->header), *compressed, first->header.bytes) : QByteArray();
    if (bytes.isEmpty() || Checksum(bytes) != first->header.checksum)
        return Fault(QStringLiteral("the ticket is damaged: its checksum does not fit"));
    const QString sealedPart = FindJobOption(options, kTicketSealedOption).value_or(QString());
    if (sealedPart.isEmpty() == (first->header.sealedParts > 0))
        return Fault(first->header.sealedParts > 0
                         ? QStringLiteral("the ticket's sealed part is missing")
                         : QStringLiteral("the ticket has a sealed part that is not its own"));
    return {.propertyList = bytes, .sealedPart = sealedPart};
}

} // namespace kesta::host
