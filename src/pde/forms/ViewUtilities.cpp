#include "pde/forms/ViewUtilities.h"

#include "toolkit/controls/TabControl.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QVBoxLayout>

namespace kesta {

void UpdateTabControl(TabControl* tabs, std::span<QWidget* const> panes)
{
    if (!tabs)
        return;
    int position = 0;
    for (QWidget* pane : panes) {
        const bool shown = ++position == tabs->value();
        SetControlVisible(pane, shown);
        SetControlEnabled(pane, shown);
    }
    tabs->update();
}

void AppendViewFromWindowAndUnpack(QWidget& target, QWidget& window, ControlID id, int& offset)
{
    QWidget* view = FindControl(&window, id);
    if (!view)
        return;
    if (!target.layout())
        (new QVBoxLayout(&target))->setContentsMargins(0, 0, 0, 0);
    offset += view->sizeHint().height();
    target.layout()->addWidget(view);
}

void TranslateView(QWidget* view, int dx, int dy)
{
    if (view)
        view->move(view->pos() + QPoint(dx, dy));
}

void SetupTextViewControl(QWidget* control, Float32 fontSize)
{
    if (!control)
        return;
    QFont font = control->font();
    font.setPointSizeF(fontSize);
    control->setFont(font);
    SetControlText(control, QString());
}

OSStatus UpdateSummaryTextView(QWidget* view, const QString& text)
{
    if (text.isNull())
        return kMissingArgument;
    SetControlText(view, text);
    return noErr;
}

} // namespace kesta
