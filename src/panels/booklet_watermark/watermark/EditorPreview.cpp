#include "panels/booklet_watermark/watermark/EditorPreview.h"

#include "panels/booklet_watermark/watermark/PageDrawing.h"
#include "toolkit/style/KestaColors.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace kesta::booklet_watermark::editor {
namespace {

constexpr double kHandleDistance = 20; // points on the screen
constexpr double kHandleRadius = 4.5;
constexpr double kGrip = 8; // how near the mouse has to be
const QColor kAction(0x54, 0x68, 0xEC);

// Between the page and its picture in the window.
struct PageView {
    QRectF place;
    QSizeF page;

    double scale() const { return place.width() / page.width(); }
    QPointF toView(QPointF point) const
    {
        return {place.left() + point.x() * scale(), place.bottom() - point.y() * scale()};
    }
    QPolygonF toView(const QPolygonF& points) const
    {
        QPolygonF shown;
        for (const QPointF& point : points)
            shown << toView(point);
        return shown;
    }
    QPointF toPage(QPointF point) const
    {
        return QPointF(point.x() - place.left(), place.bottom() - point.y()) / scale();
    }
};

PageView ViewIn(const _WatermarkEditorContext& editor, const QRectF& bounds)
{
    return {PagePlace(editor.page(), bounds), editor.page()};
}

std::optional<PlacedText> TextOf(const _WatermarkEditorContext& editor)
{
    if (!editor.rendered || editor.rendered->text.isEmpty() || editor.notes.frame.isEmpty())
        return std::nullopt;
    return PlacedText{{editor.rendered->xPosition, editor.rendered->yPosition},
                      editor.notes.frame,
                      static_cast<double>(editor.rendered->angle)};
}

void DrawCentreLines(QPainter& painter, const QRectF& place)
{
    painter.setPen(QPen(kAction, 1, Qt::DashLine));
    painter.drawLine(QPointF(place.center().x(), place.top()), QPointF(place.center().x(), place.bottom()));
    painter.drawLine(QPointF(place.left(), place.center().y()), QPointF(place.right(), place.center().y()));
}

void DrawFrame(QPainter& painter, const PageView& view, const PlacedText& text)
{
    painter.setPen(QPen(kAction, 1.25));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(view.toView(text.outline()));
    const QPointF handle = view.toView(text.handle(kHandleDistance / view.scale()));
    painter.drawLine(view.toView(text.handle(0)), handle);
    painter.setBrush(Qt::white);
    painter.drawEllipse(handle, kHandleRadius, kHandleRadius);
}

double AngleOf(QPointF direction)
{
    return std::atan2(direction.y(), direction.x()) * 180 / M_PI;
}

} // namespace

void DrawPreview(const _WatermarkEditorContext& editor, const DrawEvent& draw)
{
    QPainter& painter = *draw.painter;
    const PageView view = ViewIn(editor, draw.bounds);
    DrawPage(painter, view.place, view.page, editor.preview.content());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(draw.bounds);
    if (editor.isDragged)
        DrawCentreLines(painter, view.place);
    if (const std::optional<PlacedText> text = TextOf(editor))
        DrawFrame(painter, view, *text);
    const QWidget* preview = editor.control(kPreview);
    if (preview && preview->hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(CurrentColors().ring, 2));
        painter.drawRect(QRectF(draw.bounds).adjusted(1, 1, -1, -1));
    }
    painter.restore();
}

PreviewMouse::PreviewMouse(_WatermarkEditorContext& editor, QWidget& preview) : editor_(editor), preview_(preview)
{
    preview.installEventFilter(this);
    preview.setMouseTracking(true);
}

bool PreviewMouse::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        press(static_cast<const QMouseEvent&>(*event));
        return true;
    case QEvent::MouseMove:
        drag(static_cast<const QMouseEvent&>(*event));
        return true;
    case QEvent::MouseButtonRelease:
        release();
        return true;
    case QEvent::KeyPress:
        return pressKey(static_cast<const QKeyEvent&>(*event));
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        preview_.update();
        return false;
    default:
        return false;
    }
}

PreviewMouse::Grip PreviewMouse::gripAt(QPointF at) const
{
    const std::optional<PlacedText> text = TextOf(editor_);
    if (!text)
        return Grip::None;
    const PageView view = ViewIn(editor_, preview_.rect());
    const QPointF toHandle = at - view.toView(text->handle(kHandleDistance / view.scale()));
    if (std::hypot(toHandle.x(), toHandle.y()) <= kGrip)
        return Grip::Handle;
    return view.toView(text->outline()).containsPoint(at, Qt::OddEvenFill) ? Grip::Text : Grip::None;
}

void PreviewMouse::press(const QMouseEvent& event)
{
    preview_.setFocus(Qt::MouseFocusReason);
    grip_ = event.button() == Qt::LeftButton ? gripAt(event.position()) : Grip::None;
    if (grip_ == Grip::None)
        return;
    before_ = editor_.record;
    pressedAt_ = event.position();
    const PageView view = ViewIn(editor_, preview_.rect());
    middle_ = TextOf(editor_)->middle();
    lastAngle_ = AngleOf(view.toPage(pressedAt_) - middle_);
    turned_ = 0;
    editor_.isDragged = grip_ == Grip::Text;
    preview_.update();
}

void PreviewMouse::drag(const QMouseEvent& event)
{
    if (grip_ == Grip::None) {
        const Grip under = gripAt(event.position());
        preview_.setCursor(under == Grip::Handle ? Qt::PointingHandCursor
                           : under == Grip::Text ? Qt::SizeAllCursor
                                                 : Qt::ArrowCursor);
        return;
    }
    const PageView view = ViewIn(editor_, preview_.rect());
    if (grip_ == Grip::Text) {
        MoveText(editor_.record, before_, view.toPage(event.position()) - view.toPage(pressedAt_));
    } else {
        const double angle = AngleOf(view.toPage(event.position()) - middle_);
        turned_ += std::remainder(angle - lastAngle_, 360);
        lastAngle_ = angle;
        TurnText(editor_.record, before_.angle, turned_,
                 event.modifiers() & Qt::ShiftModifier ? Turning::InSteps : Turning::Free);
    }
    show();
}

void PreviewMouse::release()
{
    grip_ = Grip::None;
    editor_.isDragged = false;
    preview_.update();
}

bool PreviewMouse::pressKey(const QKeyEvent& event)
{
    if (!TextOf(editor_))
        return false;
    switch (event.key()) {
    case Qt::Key_Left:
        NudgeText(editor_.record, -1, 0);
        break;
    case Qt::Key_Right:
        NudgeText(editor_.record, 1, 0);
        break;
    case Qt::Key_Up:
        NudgeText(editor_.record, 0, 1);
        break;
    case Qt::Key_Down:
        NudgeText(editor_.record, 0, -1);
        break;
    default:
        return false;
    }
    show();
    return true;
}

void PreviewMouse::show()
{
    renderWatermarkIfNecessary(editor_);
    ShowRecord(editor_);
}

} // namespace kesta::booklet_watermark::editor
