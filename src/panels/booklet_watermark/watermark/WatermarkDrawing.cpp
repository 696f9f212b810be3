#include "panels/booklet_watermark/watermark/WatermarkDrawing.h"

#include "panels/booklet_watermark/fonts/GlyphOutline.h"
#include "panels/booklet_watermark/watermark/WatermarkPicture.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace kesta::booklet_watermark {
namespace {

constexpr double kPointsInInch = 72;
constexpr double kFixed = 65536; // 16.16
constexpr double kNothingYet = std::numeric_limits<double>::max();

class CairoPath : public OutlineSink {
public:
    explicit CairoPath(cairo_t* context) : context_(context) {}

    void moveTo(OutlinePoint to) override
    {
        take(to);
        cairo_move_to(context_, pen_ + to.x, to.y);
    }
    void lineTo(OutlinePoint to) override
    {
        take(to);
        cairo_line_to(context_, pen_ + to.x, to.y);
    }
    void curveTo(OutlinePoint first, OutlinePoint second, OutlinePoint to) override
    {
        for (const OutlinePoint& point : {first, second, to})
            take(point);
        cairo_curve_to(context_, pen_ + first.x, first.y, pen_ + second.x, second.y, pen_ + to.x, to.y);
    }
    void close() override { cairo_close_path(context_); }

    void setPen(double pen) { pen_ = pen; }
    // Around all points, those that only bend curves included; empty without any.
    QRectF frame() const
    {
        return least_.x > most_.x ? QRectF() : QRectF({least_.x, least_.y}, QPointF(most_.x, most_.y));
    }

private:
    void take(OutlinePoint point)
    {
        least_ = {std::min(least_.x, pen_ + point.x), std::min(least_.y, point.y)};
        most_ = {std::max(most_.x, pen_ + point.x), std::max(most_.y, point.y)};
    }

    cairo_t* context_;
    double pen_ = 0;
    OutlinePoint least_{kNothingYet, kNothingYet};
    OutlinePoint most_{-kNothingYet, -kNothingYet};
};

// The line with its origin at that of the user space, turned counter-clockwise; its frame before it was turned.
QRectF AddLine(cairo_t* context, const FontChoice& font, const _WatermarkData& record)
{
    cairo_save(context);
    cairo_rotate(context, record.angle * std::numbers::pi / 180);
    const double scale = std::clamp(record.fontSize, 1, 1000) / static_cast<double>(font.typeface->unitsPerEm());
    cairo_scale(context, scale, scale);
    CairoPath path(context);
    double pen = 0;
    for (const PlacedGlyph& glyph : font.line.glyphs) {
        path.setPen(pen);
        DrawOutline(*font.typeface, glyph, path);
        pen += glyph.advance;
    }
    cairo_restore(context);
    const QRectF frame = path.frame();
    return {frame.topLeft() * scale, frame.size() * scale};
}

// Of the ink in whole units, top-down.
struct ImageBounds {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

ImageBounds BoundsOfPath(cairo_t* context)
{
    double left = 0, low = 0, right = 0, high = 0;
    cairo_path_extents(context, &left, &low, &right, &high);
    return {static_cast<int>(std::floor(left)), static_cast<int>(std::floor(-high)), static_cast<int>(std::ceil(right)),
            static_cast<int>(std::ceil(-low))};
}

double Fixed(double number)
{
    return std::round(number * kFixed) / kFixed;
}

// Whole divisions cut off towards zero.
void SetOrigin(_WatermarkData& record, const QRectF& page, const ImageBounds& ink)
{
    const QPointF center = page.center();
    record.xPosition = Fixed(center.x() + double{record.xOffset} * kPointsInInch - (ink.left + ink.right) / 2);
    record.yPosition = Fixed(center.y() + double{record.yOffset} * kPointsInInch + (ink.top + ink.bottom) / 2);
}

WatermarkNotes DrawText(cairo_t* context, const QRectF& page, _WatermarkData& record)
{
    const FontChoice font = ChooseFont(record.fontName.get(), record.text.get());
    WatermarkNotes notes;
    record.glyphs.clear();
    if (!font.typeface)
        return notes;
    notes.fontName = font.typeface->file().displayName;
    notes.isSubstitute = font.isSubstitute;
    notes.lacksCharacter = font.isSubstitute && !FontsNamed(record.fontName.get()).empty();
    notes.missingCharacters = font.line.missing;
    for (const PlacedGlyph& glyph : font.line.glyphs)
        record.glyphs.push_back(glyph.glyph);

    cairo_save(context);
    cairo_new_path(context);
    notes.frame = AddLine(context, font, record);
    SetOrigin(record, page, BoundsOfPath(context));
    cairo_path_t* const path = cairo_copy_path(context);
    cairo_new_path(context);
    cairo_translate(context, record.xPosition, record.yPosition);
    cairo_append_path(context, path);
    cairo_path_destroy(path);
    const WatermarkColor& color = record.wellColor;
    cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
    cairo_set_fill_rule(context, CAIRO_FILL_RULE_WINDING); // strokes that overlap are as dense as the others
    cairo_fill(context);
    cairo_restore(context);
    return notes;
}

PictureProblem DrawPicture(cairo_t* context, const QRectF& page, const _WatermarkData& record)
{
    const WatermarkPicture picture = LoadPicture(record.filePath.get(), record.scale);
    if (picture.problem != PictureProblem::None)
        return picture.problem;
    const double width = picture.size.width() * record.scale / 100.0;
    const double height = picture.size.height() * record.scale / 100.0;
    if (width <= 0 || height <= 0)
        return PictureProblem::None;
    const QImage& image = picture.image;
    cairo_surface_t* const surface =
        cairo_image_surface_create_for_data(const_cast<unsigned char*>(image.constBits()), CAIRO_FORMAT_ARGB32,
                                            image.width(), image.height(), static_cast<int>(image.bytesPerLine()));
    cairo_save(context);
    cairo_translate(context, page.center().x() - width / 2, page.center().y() + height / 2);
    cairo_scale(context, width / image.width(), -height / image.height()); // rows go down
    cairo_set_source_surface(context, surface, 0, 0);
    cairo_paint(context);
    cairo_restore(context);
    cairo_surface_destroy(surface);
    return PictureProblem::None;
}

} // namespace

WatermarkNotes DrawWatermark(cairo_t* context, const QRectF& page, _WatermarkData& record, QAnyStringView storeFile)
{
    WatermarkNotes notes;
    if (!record.text.isEmpty()) {
        notes = DrawText(context, page, record);
        if (!storeFile.isEmpty())
            saveWatermarkData(storeFile, record);
    } else if (!record.fileName.isEmpty()) {
        notes.picture = DrawPicture(context, page, record);
    }
    return notes;
}

} // namespace kesta::booklet_watermark
