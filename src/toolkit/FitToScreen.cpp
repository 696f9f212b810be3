#include "toolkit/FitToScreen.h"

#include <QDialogButtonBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

namespace kesta {
namespace {

QSize WantedSize(const QWidget& window)
{
    QSize size = window.sizeHint().expandedTo(window.minimumSizeHint());
    if (window.layout()->hasHeightForWidth())
        size.setHeight(window.layout()->totalHeightForWidth(size.width()));
    return size;
}

// The layout and all that is in it, in an area as wide as it asks for.
QScrollArea* MakeScrolling(QWidget& window)
{
    auto* scroll = new QScrollArea(&window);
    auto* content = new QWidget;
    scroll->setWidget(content);
    content->setLayout(window.layout()); // with its widgets
    content->layout()->setContentsMargins(0, 0, 0, 0);
    content->setAutoFillBackground(false);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->viewport()->setAutoFillBackground(false);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setMinimumWidth(content->sizeHint().width() + scroll->verticalScrollBar()->sizeHint().width());
    return scroll;
}

void ScrollAllButButtons(QWidget& window)
{
    auto* buttons = window.findChild<QDialogButtonBox*>(QString(), Qt::FindDirectChildrenOnly);
    if (buttons)
        window.layout()->removeWidget(buttons);
    QScrollArea* scroll = MakeScrolling(window);
    auto* layout = new QVBoxLayout(&window);
    layout->setSpacing(16);
    layout->addWidget(scroll);
    if (buttons)
        layout->addWidget(buttons);
}

} // namespace

void FitToScreen(QWidget& window, QSize room)
{
    if (window.testAttribute(Qt::WA_Resized) || !window.layout())
        return;
    window.ensurePolished();
    room.rheight() -= window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    QSize size = WantedSize(window);
    if (size.height() > room.height()) {
        ScrollAllButButtons(window);
        size.setWidth(window.sizeHint().width());
    }
    window.resize(size.boundedTo(room));
}

void FitToScreen(QWidget& window)
{
    if (const QScreen* screen = window.screen())
        FitToScreen(window, screen->availableSize());
}

} // namespace kesta
