#include "pde/shell/CentredLayout.h"

#include <QWidget>

#include <algorithm>

namespace kesta::shell {

QPoint CentredPosition(QSize parent, QSize pane)
{
    return {std::max(0, parent.width() / 2 - pane.width() / 2), parent.height() / 2 - pane.height() / 2};
}

CentredLayout::CentredLayout(QWidget& parent) : QLayout(&parent)
{
    setContentsMargins(0, 0, 0, 0);
}

CentredLayout::~CentredLayout() = default;

void CentredLayout::addItem(QLayoutItem* item)
{
    items_.emplace_back(item);
    if (QWidget* widget = item->widget()) {
        QSizePolicy policy = widget->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        widget->setSizePolicy(policy);
    }
}

QLayoutItem* CentredLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? items_[index].get() : nullptr;
}

QLayoutItem* CentredLayout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    QLayoutItem* item = items_[index].release();
    items_.erase(items_.begin() + index);
    return item;
}

QSize CentredLayout::sizeHint() const
{
    return roomFor(&QLayoutItem::sizeHint);
}

QSize CentredLayout::minimumSize() const
{
    return roomFor(&QLayoutItem::minimumSize);
}

QSize CentredLayout::roomFor(QSize (QLayoutItem::*needed)() const) const
{
    QSize room(0, 0);
    for (const auto& item : items_) {
        const QSize size = (item.get()->*needed)();
        const bool isShown = item->widget() && !item->widget()->isHidden();
        room = room.expandedTo({size.width(), isShown ? size.height() : 0});
    }
    return room;
}

void CentredLayout::setGeometry(const QRect& room)
{
    QLayout::setGeometry(room);
    for (const auto& item : items_) {
        const QSize size = room.size().expandedTo(item->minimumSize());
        if (QWidget* widget = item->widget()) // an item would not go above its parent
            widget->setGeometry(QRect(room.topLeft() + CentredPosition(room.size(), size), size));
    }
}

} // namespace kesta::shell
