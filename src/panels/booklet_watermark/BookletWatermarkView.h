#pragma once

#include "panels/booklet_watermark/BookletWatermarkPanel.h"
#include "pde/forms/BoundControls.h"

namespace kesta::booklet_watermark {

QWidget* FindHere(const _BookletWatermarkContext& panel, Control number); // null before Open

BoundControls<BookletWatermarkOptions> BoundOptions(const _BookletWatermarkContext& panel);

// Once, when the controls are there.
void BuildControls(_BookletWatermarkContext& panel);

// Everything, from the options; without the controls nothing but that the preview is due.
void ShowOptions(_BookletWatermarkContext& panel);
void ShowBooklet(const _BookletWatermarkContext& panel);
// After a change of the list: its items; then what is chosen.
void FillWatermarkMenu(const _BookletWatermarkContext& panel);
void ShowWatermark(_BookletWatermarkContext& panel);
// What the user should know of the watermark.
void ShowNote(const _BookletWatermarkContext& panel);

// Draws the selected watermark into the preview's buffer.
void renderWatermark(_BookletWatermarkContext& panel);
EventResult DrawPanelControl(_BookletWatermarkContext& panel, const DrawEvent& draw);

} // namespace kesta::booklet_watermark
