#include "panels/booklet_watermark/booklet/FoldScene.h"

#include "toolkit/style/Pictures.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace kesta {
namespace {

constexpr int kSheets = 6;
constexpr double kMiddle = 48;
constexpr double kDistance = 7; // between the sheets, and from the middle to the innermost one twice
constexpr double kFold = 8;     // where the outermost sheet is folded
constexpr double kEdgeOfOutermost = 118;
constexpr double kGreatestShift = 3; // of one sheet against the next, at the greatest creep
constexpr double kGreatestRoom = 40; // of the greatest gutter

const QColor kSheetColor(0x6B, 0x76, 0x84);
const QColor kActionColor(0x54, 0x68, 0xEC);

// From the outermost, 0, inwards.
struct SheetPlace {
    double halfHeight, bend, edge;
};

SheetPlace PlaceOfSheet(int sheet, const Booklet& booklet)
{
    const double halfHeight = (kSheets - sheet - 0.5) * kDistance;
    const double shift = kGreatestShift * std::clamp(booklet.creep, 0, kGreatestCreep) / kGreatestCreep;
    return {halfHeight, kFold + kDistance * sheet * 0.5 + halfHeight, kEdgeOfOutermost + sheet * shift};
}

QPainterPath OutlineOfSheet(const SheetPlace& sheet)
{
    QPainterPath path(QPointF(sheet.edge, kMiddle - sheet.halfHeight));
    path.lineTo(sheet.bend, kMiddle - sheet.halfHeight);
    path.arcTo(
        QRectF(sheet.bend - sheet.halfHeight, kMiddle - sheet.halfHeight, 2 * sheet.halfHeight, 2 * sheet.halfHeight),
        90, 180);
    path.lineTo(sheet.edge, kMiddle + sheet.halfHeight);
    return path;
}

void DrawGutter(QPainter& painter, const SheetPlace& sheet, double room)
{
    painter.setPen(QPen(kActionColor, 3.5, Qt::SolidLine, Qt::FlatCap));
    for (const double y : {kMiddle - sheet.halfHeight, kMiddle + sheet.halfHeight})
        painter.drawLine(QPointF(sheet.bend, y), QPointF(sheet.bend + room, y));
}

} // namespace

void DrawFoldScene(QPainter& painter, const QRect& bounds, const Booklet& booklet, bool isEnabled)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled ? 1 : kDisabledPictureOpacity);
    painter.translate(bounds.topLeft());
    const double room = kGreatestRoom * std::clamp(booklet.gutter, 0, kGreatestGutter) / kGreatestGutter;
    for (int sheet = 0; sheet < kSheets; ++sheet) {
        const SheetPlace place = PlaceOfSheet(sheet, booklet);
        painter.setPen(QPen(kSheetColor, 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(OutlineOfSheet(place));
        if (room > 0)
            DrawGutter(painter, place, room);
    }
    painter.setPen(QPen(kSheetColor, 1, Qt::DashLine));
    painter.drawLine(QPointF(kEdgeOfOutermost, 2), QPointF(kEdgeOfOutermost, 94));
    painter.restore();
}

} // namespace kesta
