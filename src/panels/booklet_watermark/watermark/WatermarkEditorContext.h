#pragma once

#include "panels/booklet_watermark/watermark/PreviewBuffer.h"
#include "panels/booklet_watermark/watermark/WatermarkEditor.h"
#include "panels/booklet_watermark/watermark/WatermarkEditorRules.h"
#include "panels/booklet_watermark/watermark/WatermarkFont.h"
#include "toolkit/controls/Controls.h"

#include <QSizeF>

namespace kesta::booklet_watermark {

struct _WatermarkEditorContext {
    const Bundle& bundle;
    QWidget& window;
    _WatermarkData record; // as edited so far
    // What the other kind of watermark had, while the record is of the one.
    QString text = record.text.get(), fileName = record.fileName.get(), filePath = record.filePath.get();
    PreviewBuffer preview = PreviewBuffer();
    std::optional<_WatermarkData> rendered = {}; // what the preview shows
    WatermarkNotes notes = {};
    struct {
        QString fontName, text;
        FontProblem problem = FontProblem::None;
    } checked = {};         // whether the font can travel, which takes a while
    bool isDragged = false; // then the page's centre lines show

    QSizeF page() const { return {record.pageWidth, record.pageHeight}; }
    QWidget* control(editor::Control number) const { return FindControl(&window, {editor::kSignature, number}); }
    template <class Widget> Widget* control(editor::Control number) const
    {
        return FindControlAs<Widget>(&window, {editor::kSignature, number});
    }
};

namespace editor {

// Shows the whole record in the controls; a field that the user is typing into keeps its text.
void ShowRecord(_WatermarkEditorContext& editor, SInt32 typedInto = 0);
// Renders the page anew when the record is another one than the preview shows, or when forced.
void renderWatermarkIfNecessary(_WatermarkEditorContext& editor, bool force = false);

} // namespace editor
} // namespace kesta::booklet_watermark
