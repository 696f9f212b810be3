#pragma once

#include "panels/booklet_watermark/watermark/WatermarkEditorContext.h"

#include <QObject>

class QMouseEvent;
class QKeyEvent;

namespace kesta::booklet_watermark::editor {

void DrawPreview(const _WatermarkEditorContext& editor, const DrawEvent& draw);

// Moves and turns the text in the preview by mouse and arrow keys.
class PreviewMouse : public QObject {
public:
    PreviewMouse(_WatermarkEditorContext& editor, QWidget& preview);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Grip { None, Text, Handle };

    Grip gripAt(QPointF at) const;
    void press(const QMouseEvent& event);
    void drag(const QMouseEvent& event);
    void release();
    bool pressKey(const QKeyEvent& event);
    void show();

    _WatermarkEditorContext& editor_;
    QWidget& preview_;
    Grip grip_ = Grip::None;
    QPointF pressedAt_;     // in the preview
    double lastAngle_ = 0;  // degrees, of the mouse seen from the text's middle
    double turned_ = 0;     // since it was pressed
    QPointF middle_;        // of the text then
    _WatermarkData before_; // the record then
};

} // namespace kesta::booklet_watermark::editor
