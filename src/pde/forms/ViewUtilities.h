#pragma once

#include "platform/values/Types.h"

#include <span>

class QString;
class QWidget;

namespace kesta {

class TabControl;
struct ControlID;

// Of the panes, in the order of the tabs, shows and enables the one at the tab control's value and hides and disables
// the others. Null panes are passed over.
void UpdateTabControl(TabControl* tabs, std::span<QWidget* const> panes);

// Moves the window's view of that number, with all that is in it, into the target, below what that holds, and adds the
// view's height to the offset. Nothing happens when there is no such view.
void AppendViewFromWindowAndUnpack(QWidget& target, QWidget& window, ControlID view, int& offset);

void TranslateView(QWidget* view, int dx, int dy); // in pixels; for views that no layout places

// Makes a label an empty text of that font size in points.
void SetupTextViewControl(QWidget* control, Float32 fontSize);

// The whole text; how long a text can be laid out at once is the view's affair.
OSStatus UpdateSummaryTextView(QWidget* view, const QString& text);

} // namespace kesta
