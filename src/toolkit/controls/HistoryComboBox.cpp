#include "toolkit/controls/HistoryComboBox.h"

#include "toolkit/controls/ControlEvent.h"
#include "toolkit/controls/TextInput.h"

#include <QCompleter>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionMenuItem>
#include <QStyledItemDelegate>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace kesta {
namespace {

// The open list looks like the menus of pop-ups.
class MenuRows : public QStyledItemDelegate {
public:
    explicit MenuRows(HistoryComboBox* combo) : QStyledItemDelegate(combo), combo_(*combo) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QStyleOptionMenuItem row = rowFor(option, index);
        painter->fillRect(option.rect, option.palette.base());
        combo_.style()->drawControl(QStyle::CE_MenuItem, &row, painter, &combo_);
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QStyleOptionMenuItem row = rowFor(option, index);
        return combo_.style()->sizeFromContents(QStyle::CT_MenuItem, &row, row.fontMetrics.size(0, row.text), &combo_);
    }

private:
    QStyleOptionMenuItem rowFor(const QStyleOptionViewItem& option, const QModelIndex& index) const
    {
        QStyleOptionMenuItem row;
        row.initFrom(&combo_);
        row.rect = option.rect;
        row.font = combo_.font();
        row.fontMetrics = combo_.fontMetrics();
        row.text = index.data().toString().replace(u'&', QLatin1String("&&"));
        row.state = QStyle::State_Enabled;
        row.state.setFlag(QStyle::State_Selected, option.state & QStyle::State_Selected);
        row.menuHasCheckableItems = true;
        row.checkType = QStyleOptionMenuItem::NonExclusive;
        row.checked = index.row() == combo_.currentIndex();
        row.menuItemType = index.data(Qt::AccessibleDescriptionRole).toString() == QLatin1String("separator")
                               ? QStyleOptionMenuItem::Separator
                               : QStyleOptionMenuItem::Normal;
        return row;
    }

    const HistoryComboBox& combo_;
};

} // namespace

HistoryComboBox::HistoryComboBox(QWidget* parent) : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumContentsLength(12);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setCompleter(nullptr); // a completed text would enter unasked
    setItemDelegate(new MenuRows(this));
    SendTextEvents(*this);
    // A combo box takes a typed text that reads like an item for the item: here it stays a text.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    connect(this, &QComboBox::textActivated, this, [this] { takeRow(currentIndex()); });
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { chosenFixed_ = -1; });
    // An assistive program sets the text without typing it.
    connect(lineEdit(), &QLineEdit::textChanged, this, [this](const QString& text) {
        if (chosenFixed_ >= 0 && text != fixed_[static_cast<std::size_t>(chosenFixed_)].title)
            chosenFixed_ = -1;
    });
}

void HistoryComboBox::setFixedEntries(std::vector<FixedEntry> entries)
{
    fixed_ = std::move(entries);
    refill();
}

void HistoryComboBox::setHistory(std::vector<QString> history)
{
    history_ = std::move(history);
    refill();
}

// Keeps what the field holds; a fixed entry that is gone leaves the first one, without entries an empty text.
void HistoryComboBox::refill()
{
    const QString text = currentText();
    const int chosen = std::exchange(chosenFixed_, -1);
    clear();
    for (const FixedEntry& entry : fixed_)
        addItem(entry.title);
    if (!fixed_.empty() && !history_.empty())
        insertSeparator(count());
    for (const QString& earlier : history_)
        addItem(earlier);
    if (chosen >= 0 && chosen < static_cast<int>(fixed_.size()))
        setFixedValue(fixed_[static_cast<std::size_t>(chosen)].value);
    else
        setTypedText(text);
}

std::optional<SInt32> HistoryComboBox::fixedValue() const
{
    if (chosenFixed_ < 0)
        return std::nullopt;
    return fixed_[static_cast<std::size_t>(chosenFixed_)].value;
}

QString HistoryComboBox::typedText() const
{
    return chosenFixed_ < 0 ? currentText() : QString();
}

bool HistoryComboBox::setFixedValue(SInt32 value)
{
    const auto entry = std::ranges::find(fixed_, value, &FixedEntry::value);
    if (entry == fixed_.end())
        return false;
    chosenFixed_ = static_cast<int>(entry - fixed_.begin());
    setCurrentIndex(chosenFixed_);
    setEditText(entry->title);
    return true;
}

void HistoryComboBox::setTypedText(const QString& text)
{
    chosenFixed_ = -1;
    setCurrentIndex(-1);
    setEditText(text);
}

int HistoryComboBox::itemCount() const
{
    return static_cast<int>(fixed_.size() + history_.size());
}

bool HistoryComboBox::chooseItem(int position)
{
    if (!isEnabled() || position < 1 || position > itemCount())
        return false;
    const bool isFixed = position <= static_cast<int>(fixed_.size());
    const int separators = !isFixed && !fixed_.empty() ? 1 : 0;
    setCurrentIndex(position - 1 + separators);
    takeRow(currentIndex());
    return true;
}

void HistoryComboBox::takeRow(int row)
{
    if (row < 0)
        return;
    const int fixedCount = static_cast<int>(fixed_.size());
    chosenFixed_ = row < fixedCount ? row : -1;
    const int position = row < fixedCount || fixed_.empty() ? row + 1 : row;
    const SInt32 value = fixedValue().value_or(0);
    const QPointer<HistoryComboBox> alive = this;
    SendControlEvent(*this, ItemChosenEvent{.position = position, .ticketValue = value});
    if (alive)
        SendControlEvent(*this, HitEvent{.value = position, .ticketValue = value});
}

void HistoryComboBox::wheelEvent(QWheelEvent* event)
{
    hasFocus() ? QComboBox::wheelEvent(event) : event->ignore();
}

} // namespace kesta
