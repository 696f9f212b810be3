#include "panels/booklet_watermark/watermark/DrawingLibrary.h"

#include "panels/booklet_watermark/fonts/GlyphOutline.h"
#include "panels/booklet_watermark/watermark/PagePicture.h"
#include "panels/booklet_watermark/watermark/WatermarkPreview.h"

// The one place where the shared object meets the functions that it is made of.
namespace kesta::booklet_watermark {
namespace {

class PainterPath : public OutlineSink {
public:
    PainterPath(QPainterPath& path, double scale) : path_(path), scale_(scale) {}

    void setPen(double pen) { pen_ = pen; }
    void moveTo(OutlinePoint to) override { path_.moveTo(place(to)); }
    void lineTo(OutlinePoint to) override { path_.lineTo(place(to)); }
    void curveTo(OutlinePoint first, OutlinePoint second, OutlinePoint to) override
    {
        path_.cubicTo(place(first), place(second), place(to));
    }
    void close() override { path_.closeSubpath(); }

private:
    QPointF place(OutlinePoint point) const { return QPointF(pen_ + point.x, -point.y) * scale_; }

    QPainterPath& path_;
    double scale_;
    double pen_ = 0;
};

QPainterPath TextOutline(const QString& fontName, const QString& text, double size, Substitutes substitutes)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    const FontChoice font = ChooseFont(fontName, text);
    const bool isStrict = substitutes == Substitutes::None;
    if (!font.typeface || (isStrict && (font.isSubstitute || !font.line.missing.isEmpty())))
        return path;
    PainterPath sink(path, size / font.typeface->unitsPerEm());
    double pen = 0;
    for (const PlacedGlyph& glyph : font.line.glyphs) {
        sink.setPen(pen);
        DrawOutline(*font.typeface, glyph, sink);
        pen += glyph.advance;
    }
    return path;
}

constexpr DrawingLibrary kDrawing{
    .renderWatermark = renderWatermark,
    .renderSavedWatermark = renderSavedWatermark,
    .convertFont = convertFont,
    .CheckFont = CheckFont,
    .DropFont = DropFont,
    .CheckWatermarkName = CheckWatermarkName,
    .InstalledFonts = InstalledFonts,
    .TextOutline = TextOutline,
    .PictureOfPage = PictureOfPage,
};

} // namespace
} // namespace kesta::booklet_watermark

const kesta::booklet_watermark::DrawingLibrary* KestaWatermarkDrawing()
{
    return &kesta::booklet_watermark::kDrawing;
}
