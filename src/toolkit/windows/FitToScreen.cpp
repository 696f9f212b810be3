#include "toolkit/windows/FitToScreen.h"

#include <QDialogButtonBox>
#include <QFrame>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace kesta {
namespace {

constexpr QMargins kBandMargins{16, 12, 16, 16}; // points
constexpr int kTitleBarHeight = 37;              // of the highest that desktops have

QSize WantedSize(const QWidget& window)
{
    QSize size = window.sizeHint().expandedTo(window.minimumSizeHint());
    if (window.layout()->hasHeightForWidth())
        size.setHeight(window.layout()->totalHeightForWidth(size.width()));
    return size;
}

// What a scroll bar takes of the width.
int WidthOfBar(const QScrollArea& scroll)
{
    const QScrollBar* bar = scroll.verticalScrollBar();
    return bar->sizeHint().width() - bar->style()->pixelMetric(QStyle::PM_ScrollView_ScrollBarOverlap, nullptr, bar);
}

bool HasFields(const QWidget& content)
{
    const QList<QWidget*> widgets = content.findChildren<QWidget*>();
    return std::ranges::any_of(widgets, [](const QWidget* widget) { return widget->focusPolicy() & Qt::TabFocus; });
}

// The layout and all that is in it, in an area as wide as it asks for.
QScrollArea* MakeScrolling(QWidget& window)
{
    auto* scroll = new QScrollArea(&window);
    auto* content = new QWidget;
    scroll->setWidget(content);
    content->setLayout(window.layout()); // with its widgets
    content->setAutoFillBackground(false);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->viewport()->setAutoFillBackground(false);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(HasFields(*content) ? Qt::NoFocus : Qt::TabFocus); // the arrow keys scroll mere text
    scroll->setAccessibleName(window.windowTitle());
    scroll->setMinimumWidth(content->sizeHint().width() + WidthOfBar(*scroll));
    return scroll;
}

bool HoldsButtons(QLayoutItem& item)
{
    if (const QLayout* row = item.layout()) {
        for (int i = 0; i < row->count(); ++i) {
            if (HoldsButtons(*row->itemAt(i)))
                return true;
        }
    }
    return qobject_cast<QDialogButtonBox*>(item.widget());
}

// The dialog's buttons, with those beside them, out of their layout; null when they don't stand below everything else.
QLayoutItem* TakeButtons(QLayout& layout)
{
    int last = layout.count() - 1;
    while (last >= 0 && layout.itemAt(last)->spacerItem())
        --last;
    return last >= 0 && HoldsButtons(*layout.itemAt(last)) ? layout.takeAt(last) : nullptr;
}

void ScrollAllButButtons(QWidget& window)
{
    QLayoutItem* buttons = TakeButtons(*window.layout());
    QScrollArea* scroll = MakeScrolling(window);
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(scroll);
    if (!buttons)
        return;
    auto* hairline = new QFrame;
    hairline->setFrameShape(QFrame::HLine);
    auto* band = new QVBoxLayout;
    band->setContentsMargins(kBandMargins);
    if (QLayout* row = buttons->layout())
        band->addLayout(row);
    else
        band->addItem(buttons);
    layout->addWidget(hairline);
    layout->addLayout(band);
}

} // namespace

void FitToScreen(QWidget& window, QSize room)
{
    if (window.testAttribute(Qt::WA_Resized) || !window.layout())
        return;
    window.ensurePolished();
    QSize size = WantedSize(window);
    if (size.height() > room.height()) {
        ScrollAllButButtons(window);
        size.setWidth(window.sizeHint().width());
    }
    window.resize(size.boundedTo(room));
}

void FitToScreen(QWidget& window)
{
    FitToScreen(window, RoomOnScreen(window));
}

QSize RoomOnScreen(const QWidget& window)
{
    const QScreen* screen = window.screen();
    const int ofStyle = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    return screen ? screen->availableSize() - QSize(0, std::max(ofStyle, kTitleBarHeight))
                  : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

} // namespace kesta
