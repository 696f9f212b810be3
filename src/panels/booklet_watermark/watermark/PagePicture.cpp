#include "panels/booklet_watermark/watermark/PagePicture.h"

#include <QBuffer>
#include <QPdfDocument>

#include <deque>

namespace kesta::booklet_watermark {
namespace {

constexpr std::size_t kMostKept = 4; // the panel's and the editor's, before and after a change

QImage Render(const QByteArray& pdf, QSize pixels)
{
    QBuffer file;
    file.setData(pdf);
    file.open(QIODevice::ReadOnly);
    QPdfDocument document;
    document.load(&file);
    if (document.status() != QPdfDocument::Status::Ready || document.pageCount() < 1)
        return {};
    return document.render(0, pixels);
}

struct KeptPicture {
    QByteArray pdf;
    QSize pixels;
    QImage picture;
};

} // namespace

QImage PictureOfPage(QByteArrayView pdf, QSize pixels)
{
    static std::deque<KeptPicture> kept;
    for (const KeptPicture& one : kept) {
        if (one.pixels == pixels && one.pdf == pdf)
            return one.picture;
    }
    if (kept.size() == kMostKept)
        kept.pop_front();
    const QByteArray content = pdf.toByteArray();
    kept.push_back({content, pixels, Render(content, pixels)});
    return kept.back().picture;
}

} // namespace kesta::booklet_watermark
