#include "host/dialog/PaneArea.h"

#include "host/dialog/PrintDialogControls.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QEvent>
#include <QLabel>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>

#include <vector>

namespace kesta::host {
namespace {

// A scroll area takes any width and scrolls sideways; this keeps it as wide as its content asks for.
class WidthFollower : public QObject {
public:
    WidthFollower(QScrollArea& scroll, QWidget& content) : QObject(&scroll), scroll_(scroll), content_(content)
    {
        content.installEventFilter(this);
        scroll.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize)
            follow();
        return false;
    }

private:
    void follow()
    {
        const QSize needed = content_.minimumSizeHint().expandedTo(QSize(0, 0)); // without a layout: (-1, -1)
        const bool scrolls = needed.height() > scroll_.height();
        const int bar = scrolls ? scroll_.verticalScrollBar()->sizeHint().width() : 0;
        scroll_.setMinimumWidth(needed.width() + bar);
    }

    QScrollArea& scroll_;
    QWidget& content_;
};

QWidget* Control(const QWidget* window, PrintControl number)
{
    return FindControl(window, {kPrintSignature, number});
}

void SetText(const QWidget* window, PrintControl number, const QString& text)
{
    if (auto* label = qobject_cast<QLabel*>(Control(window, number))) {
        label->setText(text);
        label->setVisible(!text.isEmpty());
    }
}

} // namespace

PaneArea::PaneArea(QWidget& window)
    : window_(&window), area_(Control(&window, kPaneArea)), host_(Control(&window, kPaneHost))
{
    for (auto* scroll : window.findChildren<QScrollArea*>()) {
        if (scroll->widget() != host_)
            continue;
        new WidthFollower(*scroll, *host_);
        scroll->viewport()->setAutoFillBackground(false); // the area's own colour shows
        host_->setAutoFillBackground(false);
    }
    if (area_)
        area_->setContentsMargins(0, 1, 0, 1); // room for the hairlines
    for (const PrintControl text : {kMessageTitle, kMessageText}) {
        if (auto* label = qobject_cast<QLabel*>(Control(&window, text))) {
            label->setTextFormat(Qt::PlainText); // servers and printers have their say here
            label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        }
    }
}

void PaneArea::showPage(QWidget* page)
{
    auto* stack = qobject_cast<QStackedWidget*>(area_);
    while (stack && page && page->parentWidget() != stack)
        page = page->parentWidget();
    if (stack && page)
        stack->setCurrentWidget(page);
}

void PaneArea::showPane()
{
    showPage(host_);
}

void PaneArea::showMessage(const PaneMessage& message)
{
    SetText(window_, kMessageTitle, message.title);
    SetText(window_, kMessageText, message.text);
    SetControlVisible(Control(window_, kProgressBar), false);
    SetControlVisible(Control(window_, kStopButton), false);
    SetControlVisible(Control(window_, kTryAgainButton), message.canTryAgain);
    showPage(Control(window_, kMessageText));
}

void PaneArea::showProgress(const PaneMessage& message, SInt64 sent, SInt64 total)
{
    constexpr int kSteps = 1000;
    showMessage(message);
    SetControlVisible(Control(window_, kProgressBar), true);
    SetControlVisible(Control(window_, kStopButton), true);
    auto* bar = qobject_cast<QProgressBar*>(Control(window_, kProgressBar));
    if (!bar)
        return;
    bar->setRange(0, total > 0 ? kSteps : 0);
    if (total > 0)
        bar->setValue(static_cast<int>(static_cast<double>(sent) / static_cast<double>(total) * kSteps));
}

void PaneArea::placeInFocusOrder(const std::vector<QWidget*>& below)
{
    QWidget* last = nullptr;
    for (QWidget* next = window_->nextInFocusChain(); next && next != window_; next = next->nextInFocusChain()) {
        if (host_->isAncestorOf(next) && next->focusPolicy() & Qt::TabFocus)
            last = next;
    }
    for (QWidget* widget : below) {
        if (last && widget)
            QWidget::setTabOrder(last, widget);
        if (widget)
            last = widget;
    }
}

} // namespace kesta::host
