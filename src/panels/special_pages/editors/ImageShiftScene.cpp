#include "panels/special_pages/editors/ImageShiftScene.h"

#include "toolkit/style/KestaColors.h"
#include "toolkit/style/Pictures.h"

#include <QPainter>

namespace kesta {
namespace {

constexpr QSizeF kSheet{64, 83};     // points
constexpr double kSheetInches = 8.5; // wide
constexpr double kGap = 16;
constexpr double kMargin = 9;
constexpr double kHeading = 3;
constexpr double kLine = 2;
constexpr double kLineDistance = 7;
constexpr int kLines = 8;

const QColor kPaper(0xFF, 0xFF, 0xFF);
const QColor kEdge(0x6B, 0x76, 0x84);
const QColor kPrint(0xA9, 0xB0, 0xB8);
const QColor kAction(0x54, 0x68, 0xEC);

void DrawPrint(QPainter& painter, const QRectF& print)
{
    const double left = print.left() + 4, width = print.width() - 8;
    double y = print.top() + 5;
    painter.fillRect(QRectF(left, y, width * 0.6, kHeading), kEdge);
    y += kHeading + 4;
    for (int line = 0; line < kLines && y + kLine < print.bottom(); ++line, y += kLineDistance)
        painter.fillRect(QRectF(left, y, line + 1 == kLines ? width * 0.6 : width, kLine), kPrint);
}

void DrawSide(QPainter& painter, const QRectF& sheet, const ShiftOfSide& side, SizeUnits units, bool isOn)
{
    const QRectF before = sheet.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const QRectF now = isOn ? ShiftedPrint(before, side, units, kSheet.width() / kSheetInches) : before;
    painter.save();
    painter.setClipRect(sheet);
    painter.fillRect(sheet, kPaper);
    DrawPrint(painter, now);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kEdge, 1, Qt::DashLine));
    painter.drawRect(before.adjusted(0.5, 0.5, -0.5, -0.5));
    if (isOn) {
        painter.setPen(QPen(kAction, 1.5));
        painter.drawRect(now.adjusted(0.5, 0.5, -0.5, -0.5));
    }
    painter.restore();
    painter.setPen(QPen(kEdge, 1));
    painter.drawRect(sheet.adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace

void DrawImageShiftScene(QPainter& painter, const QRect& bounds, const ShiftSettings& settings,
                         Qt::LayoutDirection direction)
{
    const QRectF left(bounds.topLeft(), kSheet);
    const QRectF right = left.translated(kSheet.width() + kGap, 0);
    const bool isMirrored = direction == Qt::RightToLeft;
    painter.save();
    painter.setOpacity(settings.isOn ? 1 : kDisabledPictureOpacity);
    DrawSide(painter, isMirrored ? right : left, settings.side1, settings.units, settings.isOn);
    DrawSide(painter, isMirrored ? left : right, settings.side2, settings.units, settings.isOn);
    painter.restore();
}

} // namespace kesta
