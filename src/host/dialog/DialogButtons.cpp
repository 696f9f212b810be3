#include "host/dialog/DialogButtons.h"

#include "host/dialog/PrintDialogControls.h"
#include "toolkit/controls/Controls.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QStyle>
#include <QWidget>

namespace kesta::host {
namespace {

bool AcceptsFirst(const QWidget& window)
{
    const int order = window.style()->styleHint(QStyle::SH_DialogButtonLayout, nullptr, &window);
    return order == QDialogButtonBox::WinLayout || order == QDialogButtonBox::KdeLayout;
}

} // namespace

void OrderButtons(QWidget& window)
{
    QWidget* cancel = FindControl(&window, {kPrintSignature, kCancelButton});
    if (!cancel || !AcceptsFirst(window))
        return;
    for (auto* row : window.findChildren<QBoxLayout*>()) {
        if (row->indexOf(cancel) < 0)
            continue;
        row->removeWidget(cancel);
        row->addWidget(cancel);
        return;
    }
}

std::vector<QWidget*> ButtonsInOrder(const QWidget& window)
{
    const bool acceptsFirst = AcceptsFirst(window);
    std::vector<QWidget*> buttons;
    for (const PrintControl button : {kHelpButton, kSaveSettingsButton, acceptsFirst ? kPrintButton : kCancelButton,
                                      acceptsFirst ? kCancelButton : kPrintButton})
        buttons.push_back(FindControl(&window, {kPrintSignature, button}));
    return buttons;
}

} // namespace kesta::host
