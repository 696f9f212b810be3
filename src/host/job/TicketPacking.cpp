#include "host/job/TicketPacking.h"

#include <bzlib.h>
#include <zlib.h>

namespace kesta::host {
namespace {

QByteArray Deflate(const QByteArray& bytes)
{
    uLongf size = compressBound(bytes.size());
    QByteArray packed(static_cast<qsizetype>(size), Qt::Uninitialized);
    const int status = compress2(reinterpret_cast<Bytef*>(packed.data()), &size,
                                 reinterpret_cast<const Bytef*>(bytes.constData()), bytes.size(), Z_BEST_COMPRESSION);
    packed.resize(status == Z_OK ? static_cast<qsizetype>(size) : 0);
    return packed;
}

QByteArray Inflate(const QByteArray& packed, qsizetype announced)
{
    QByteArray bytes(announced, Qt::Uninitialized);
    uLongf size = bytes.size();
    uLong used = packed.size();
    const int status = uncompress2(reinterpret_cast<Bytef*>(bytes.data()), &size,
                                   reinterpret_cast<const Bytef*>(packed.constData()), &used);
    const bool whole = status == Z_OK && qsizetype(size) == announced && qsizetype(used) == packed.size();
    return whole ? bytes : QByteArray();
}

// Blocks of no more than the ticket needs: the memory for them is taken whole, up to 8 MB.
int BlockSize(qsizetype bytes)
{
    constexpr qsizetype kUnit = 100'000;
    return int(qMin<qsizetype>(bytes / kUnit + 1, 9));
}

QByteArray Sort(const QByteArray& bytes)
{
    unsigned size = static_cast<unsigned>(bytes.size() + bytes.size() / 100 + 600); // what the library asks for
    QByteArray packed(size, Qt::Uninitialized);
    const int status = BZ2_bzBuffToBuffCompress(packed.data(), &size, const_cast<char*>(bytes.constData()),
                                                static_cast<unsigned>(bytes.size()), BlockSize(bytes.size()), 0, 0);
    packed.resize(status == BZ_OK ? qsizetype(size) : 0);
    return packed;
}

// A form that takes at most 4 MB of memory, whatever the bytes say.
QByteArray Unsort(const QByteArray& packed, qsizetype announced)
{
    QByteArray bytes(announced, Qt::Uninitialized);
    bz_stream stream{};
    if (BZ2_bzDecompressInit(&stream, 0, 0) != BZ_OK)
        return {};
    stream.next_in = const_cast<char*>(packed.constData());
    stream.avail_in = static_cast<unsigned>(packed.size());
    stream.next_out = bytes.data();
    stream.avail_out = static_cast<unsigned>(announced);
    const int status = BZ2_bzDecompress(&stream);
    const bool whole = status == BZ_STREAM_END && stream.avail_in == 0 && stream.avail_out == 0;
    BZ2_bzDecompressEnd(&stream);
    return whole ? bytes : QByteArray();
}

} // namespace

QByteArray PackTicket(TicketPacking packing, const QByteArray& bytes)
{
    return packing == TicketPacking::Zlib ? Deflate(bytes) : Sort(bytes);
}

QByteArray UnpackTicket(TicketPacking packing, const QByteArray& packed, qsizetype announced)
{
    return packing == TicketPacking::Zlib ? Inflate(packed, announced) : Unsort(packed, announced);
}

} // namespace kesta::host
