#include "toolkit/style/KestaStyleDrawing.h"

#include "toolkit/style/KestaColors.h"

#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QStyleOption>

#include <algorithm>
#include <array>

namespace kesta {
namespace {

class Strokes {
public:
    Strokes(QPainter& painter, const QColor& color, double width) : painter_(painter)
    {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    ~Strokes() { painter_.restore(); }
    Strokes(const Strokes&) = delete;

private:
    QPainter& painter_;
};

} // namespace

QColor Touched(const QColor& color, const QStyleOption& option, const QColor& toward)
{
    if (option.state & QStyle::State_Sunken)
        return Mix(color, toward, 0.12);
    return option.state & QStyle::State_MouseOver && option.state & QStyle::State_Enabled ? Mix(color, toward, 0.04)
                                                                                          : color;
}

void DrawOutlined(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& outline, double radius)
{
    const Strokes strokes(painter, outline, 1);
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect).adjusted(.5, .5, -.5, -.5), radius - .5, radius - .5);
}

void DrawRing(QPainter& painter, const QRect& rect, const QColor& color, double radius)
{
    const Strokes strokes(painter, color, kFocusRingWidth);
    const double half = kFocusRingWidth / 2;
    painter.drawRoundedRect(QRectF(rect).adjusted(half, half, -half, -half), radius - half, radius - half);
}

void DrawChevron(QPainter& painter, const QRect& within, Direction direction, const QColor& color, bool rightToLeft)
{
    const Strokes strokes(painter, color, 1.5);
    const QPointF center = QRectF(within).center();
    constexpr double kWide = 4;
    constexpr double kDeep = 2;
    const double side = rightToLeft ? -1 : 1;
    std::array<QPointF, 3> points;
    switch (direction) {
    case Direction::Up:
        points = {QPointF(-kWide, kDeep), QPointF(0, -kDeep), QPointF(kWide, kDeep)};
        break;
    case Direction::Down:
        points = {QPointF(-kWide, -kDeep), QPointF(0, kDeep), QPointF(kWide, -kDeep)};
        break;
    case Direction::Leading:
        points = {QPointF(-kDeep * side, -kWide), QPointF(kDeep * side, 0), QPointF(-kDeep * side, kWide)};
        break;
    }
    for (QPointF& point : points)
        point += center;
    painter.drawPolyline(points.data(), static_cast<int>(points.size()));
}

void DrawCheckMark(QPainter& painter, const QRect& within, const QColor& color)
{
    const Strokes strokes(painter, color, 1.75);
    const QPointF center = QRectF(within).center();
    const std::array points{center + QPointF(-4, .5), center + QPointF(-1.5, 3), center + QPointF(4, -3.5)};
    painter.drawPolyline(points.data(), static_cast<int>(points.size()));
}

void DrawCautionMark(QPainter& painter, const QRect& rect, const QColor& color)
{
    painter.save();
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / 16.0, rect.height() / 16.0); // drawn on a grid of 16
    {
        const Strokes strokes(painter, color, 1.5);
        const std::array triangle{QPointF(8, 2), QPointF(15, 14), QPointF(1, 14)};
        painter.drawPolygon(triangle.data(), static_cast<int>(triangle.size()));
        painter.drawLine(QPointF(8, 6.5), QPointF(8, 9.5));
        painter.drawPoint(QPointF(8, 11.8));
    }
    painter.restore();
}

QIcon CautionIcon(double devicePixelRatio)
{
    constexpr int kSize = 16; // points
    QPixmap pixmap(QSize(kSize, kSize) * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    DrawCautionMark(painter, QRect(0, 0, kSize, kSize), CurrentColors().caution);
    painter.end();
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Disabled); // what it marks can't be chosen
    return icon;
}

} // namespace kesta
