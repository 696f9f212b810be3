#include "toolkit/style/KestaProxyStyle.h"
#include "toolkit/style/KestaStyleDrawing.h"

#include <QIcon>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace kesta {
namespace {

constexpr int kMenuRow = 26; // points, as are all here
constexpr int kSeparatorRow = 9;
constexpr int kMarkColumn = 28;
constexpr int kMenuEnd = 24;
constexpr QSize kIcon(16, 16);
constexpr int kSortArrowWidth = 20;
constexpr int kSelectionInset = 4;
constexpr double kSelectionRadius = 4;

QRect Mirrored(const QStyleOption& option, const QRect& rect)
{
    return QStyle::visualRect(option.direction, option.rect, rect);
}

void DrawMenuText(const QStyleOptionMenuItem& item, QPainter& painter, const QColor& color)
{
    const QRect text = Mirrored(item, item.rect.adjusted(kMarkColumn, 0, -kMenuEnd, 0));
    const int flags = static_cast<int>(QStyle::visualAlignment(item.direction, Qt::AlignLeft)) | Qt::AlignVCenter |
                      Qt::TextShowMnemonic | Qt::TextSingleLine;
    const qsizetype tab = item.text.indexOf(QLatin1Char('\t'));
    painter.save();
    painter.setFont(item.font);
    painter.setPen(color);
    painter.drawText(text, flags, tab < 0 ? item.text : item.text.left(tab));
    painter.restore();
}

} // namespace

QSize MenuItemSize(const QStyleOptionMenuItem& item, const QSize& contents)
{
    if (item.menuItemType == QStyleOptionMenuItem::Separator)
        return {kMarkColumn, kSeparatorRow}; // without a width a menu leaves it out
    return {contents.width() + kMarkColumn + kMenuEnd, std::max(kMenuRow, item.fontMetrics.height() + 8)};
}

void DrawMenuItem(const QStyleOptionMenuItem& item, QPainter& painter)
{
    const KestaColors colors = CurrentColors();
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        const QRect line(item.rect.left() + 12, item.rect.center().y(), item.rect.width() - 24, 1);
        return painter.fillRect(line, colors.hairline);
    }
    const bool enabled = item.state & QStyle::State_Enabled;
    const bool selected = enabled && item.state & QStyle::State_Selected;
    if (selected)
        DrawOutlined(painter, item.rect.adjusted(kSelectionInset, 0, -kSelectionInset, 0), colors.accent, colors.accent,
                     kSelectionRadius);
    const QColor color = selected ? colors.onAccent : enabled ? colors.onBase : colors.disabledOnBase;
    DrawMenuText(item, painter, color);
    const QRect mark = Mirrored(item, QRect(item.rect.left() + kSelectionInset, item.rect.top(),
                                            kMarkColumn - kSelectionInset, item.rect.height()));
    if (!item.icon.isNull())
        item.icon.paint(&painter, QStyle::alignedRect(item.direction, Qt::AlignCenter, kIcon, mark), Qt::AlignCenter,
                        enabled ? QIcon::Normal : QIcon::Disabled);
    else if (item.checkType != QStyleOptionMenuItem::NotCheckable && item.checked)
        DrawCheckMark(painter, mark, color);
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu) {
        const QRect arrow(item.rect.right() - kMenuEnd, item.rect.top(), kMenuEnd - kSelectionInset,
                          item.rect.height());
        DrawChevron(painter, Mirrored(item, arrow), Direction::Leading, color, item.direction == Qt::RightToLeft);
    }
}

void DrawHeaderSection(const QStyleOptionHeader& section, QPainter& painter)
{
    const KestaColors colors = CurrentColors();
    painter.fillRect(section.rect, colors.base);
    painter.fillRect(QRect(section.rect.bottomLeft(), QSize(section.rect.width(), 1)), colors.hairline);
    const bool sorts = section.sortIndicator != QStyleOptionHeader::None;
    const QRect text = section.rect.adjusted(kTextInset, 0, sorts ? -kSortArrowWidth : -kTextInset, 0);
    const int flags = static_cast<int>(QStyle::visualAlignment(section.direction, Qt::AlignLeft)) | Qt::AlignVCenter;
    painter.setPen(section.state & QStyle::State_Enabled ? Mix(colors.onBase, colors.base, 0.3)
                                                         : colors.disabledOnBase);
    painter.drawText(Mirrored(section, text), flags,
                     section.fontMetrics.elidedText(section.text, Qt::ElideRight, text.width()));
    if (sorts) {
        const QRect arrow(text.right(), section.rect.top(), kSortArrowWidth, section.rect.height());
        const bool up = section.sortIndicator == QStyleOptionHeader::SortUp;
        DrawChevron(painter, Mirrored(section, arrow), up ? Direction::Up : Direction::Down, colors.onBase, false);
    }
}

// The shown tab stands on a line of the accent.
void DrawTab(const QStyleOptionTab& tab, QPainter& painter)
{
    const KestaColors colors = CurrentColors();
    const bool selected = tab.state & QStyle::State_Selected;
    const QRect line(tab.rect.left(), tab.rect.bottom() - 1, tab.rect.width(), 2);
    if (selected)
        painter.fillRect(line, tab.state & QStyle::State_Enabled ? colors.accent : colors.disabled);
    if (tab.state & QStyle::State_HasFocus && tab.state & QStyle::State_KeyboardFocusChange)
        DrawRing(painter, tab.rect.adjusted(1, 1, -1, -3), colors.ring);
}

} // namespace kesta
