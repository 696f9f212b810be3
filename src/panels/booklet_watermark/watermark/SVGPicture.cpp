#include "panels/booklet_watermark/watermark/SVGPicture.h"

#include <QHash>
#include <QSet>
#include <QXmlStreamReader>

#include <zlib.h>

#include <algorithm>

namespace kesta::booklet_watermark {
namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kLargestSVG = 16 << 20; // bytes
constexpr qsizetype kBeginning = 4096;      // in which a drawing shows itself
constexpr double kMostElements = 1'000'000; // drawn, those of parts that are used counted each time
constexpr int kDeepest = 64;

bool IsCompressed(const QByteArray& bytes)
{
    return bytes.startsWith("\x1f\x8b");
}

QByteArray Inflate(const QByteArray& compressed, qsizetype most)
{
    z_stream stream = {};
    if (inflateInit2(&stream, 15 + 32) != Z_OK) // 32: with the header of a compressed file
        return {};
    QByteArray bytes(most + 1, Qt::Uninitialized);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(compressed.constData()));
    stream.avail_in = static_cast<uInt>(compressed.size());
    stream.next_out = reinterpret_cast<Bytef*>(bytes.data());
    stream.avail_out = static_cast<uInt>(bytes.size());
    inflate(&stream, Z_FINISH);
    bytes.truncate(static_cast<qsizetype>(stream.total_out));
    inflateEnd(&stream);
    return bytes;
}

// What each named part of a drawing has in it.
struct Part {
    double elements = 0;
    QStringList used;
};

class Parts {
public:
    // False when the drawing is nested too deep.
    bool read(const QByteArray& svg)
    {
        QXmlStreamReader reader(svg);
        QStringList open; // the name of each element that is not yet closed, most have none
        while (!reader.atEnd()) {
            const auto token = reader.readNext();
            if (token == QXmlStreamReader::EndElement && !open.isEmpty())
                open.removeLast();
            if (token != QXmlStreamReader::StartElement)
                continue;
            open.append(reader.attributes().value("id"_L1).toString());
            if (open.size() > kDeepest)
                return false;
            add(reader, open);
        }
        return true;
    }

    double drawn() { return drawn(QString(), 0); }

private:
    void add(const QXmlStreamReader& reader, QStringList open)
    {
        open.prepend(QString()); // the whole drawing
        open.removeDuplicates();
        const QXmlStreamAttributes attributes = reader.attributes();
        const bool isUse = reader.name() == "use"_L1;
        QString used = isUse ? attributes.value("http://www.w3.org/1999/xlink"_L1, "href"_L1).toString() : QString();
        if (isUse && used.isEmpty())
            used = attributes.value("href"_L1).toString();
        for (const QString& name : open) {
            Part& part = parts_[name];
            ++part.elements;
            if (used.startsWith(u'#'))
                part.used.append(used.sliced(1));
        }
    }

    double drawn(const QString& name, int depth)
    {
        if (depth > kDeepest)
            return kMostElements + 1;
        if (const auto known = counted_.constFind(name); known != counted_.cend())
            return *known;
        const Part part = parts_.value(name);
        double elements = part.elements;
        for (const QString& used : part.used)
            elements += drawn(used, depth + 1);
        elements = std::min(elements, kMostElements + 1);
        counted_.insert(name, elements);
        return elements;
    }

    QHash<QString, Part> parts_;
    QHash<QString, double> counted_;
};

} // namespace

bool LooksLikeSVG(QFile& file)
{
    QByteArray beginning = file.peek(kBeginning);
    if (IsCompressed(beginning))
        beginning = Inflate(beginning, kBeginning);
    return beginning.contains("<svg") || beginning.contains("<!DOCTYPE svg") || beginning.contains(":svg");
}

QByteArray ReadSVG(QFile& file)
{
    QByteArray svg = file.read(kLargestSVG + 1);
    if (IsCompressed(svg))
        svg = Inflate(svg, kLargestSVG);
    Parts parts;
    if (svg.size() > kLargestSVG || !parts.read(svg) || parts.drawn() > kMostElements)
        return {};
    return svg;
}

} // namespace kesta::booklet_watermark
