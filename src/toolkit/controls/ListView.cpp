#include "toolkit/controls/ListView.h"

#include "toolkit/controls/ControlEvent.h"
#include "toolkit/style/KestaColors.h"

#include <QAbstractTableModel>
#include <QCollator>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QSortFilterProxyModel>

#include <algorithm>

namespace kesta {

class ListView::Model : public QAbstractTableModel {
public:
    std::vector<ListColumn> columns;
    bool canDrag = false;

    void setRows(std::size_t count, std::function<ListRow(int)> make)
    {
        rows_.assign(count, {});
        isMade_.assign(count, false);
        make_ = std::move(make);
    }
    const ListRow& row(std::size_t row) const
    {
        if (!isMade_[row]) {
            rows_[row] = make_(static_cast<int>(row));
            isMade_[row] = true;
        }
        return rows_[row];
    }
    const std::vector<ListRow>& allRows() const
    {
        for (std::size_t i = 0; i < rows_.size(); ++i)
            row(i);
        return rows_;
    }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(columns.size());
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)
            return {};
        const ListRow& shown = row(static_cast<std::size_t>(index.row()));
        const std::vector<QString>& cells = shown.cells;
        const auto column = static_cast<std::size_t>(index.column());
        if (role == Qt::AccessibleTextRole)
            return column == 0 && !shown.spoken.isEmpty() ? QVariant(shown.spoken) : QVariant();
        return column < cells.size() ? QVariant(cells[column]) : QVariant();
    }
    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        if (!canDrag)
            return QAbstractTableModel::flags(index);
        return index.isValid() ? QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled
                               : Qt::ItemIsDropEnabled; // between rows
    }
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    // Which row it is says the selection; what is in it is no affair of other programs.
    QMimeData* mimeData(const QModelIndexList&) const override
    {
        auto* data = new QMimeData;
        data->setData(mimeTypes().constFirst(), QByteArray());
        return data;
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (role == Qt::TextAlignmentRole)
            return static_cast<int>(Qt::AlignLeading | Qt::AlignVCenter);
        if (role != Qt::DisplayRole || orientation != Qt::Horizontal || section >= columnCount())
            return {};
        return columns[static_cast<std::size_t>(section)].title;
    }
    template <class Change> void replace(Change change)
    {
        beginResetModel();
        change();
        endResetModel();
    }

private:
    std::function<ListRow(int)> make_;
    mutable std::vector<ListRow> rows_;
    mutable std::vector<bool> isMade_;
};

// The collator names its locale: with the C locale's it would ignore numbers and case.
class ListView::Order : public QSortFilterProxyModel {
public:
    Order()
    {
        collator_.setNumericMode(true);
        collator_.setCaseSensitivity(Qt::CaseInsensitive);
    }

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        return collator_.compare(left.data().toString(), right.data().toString()) < 0;
    }

private:
    static QLocale Language() { return QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale(); }
    QCollator collator_{Language()};
};

ListView::ListView(QWidget* parent)
    : QTreeView(parent), model_(std::make_unique<Model>()), order_(std::make_unique<Order>())
{
    order_->setSourceModel(model_.get());
    setModel(order_.get());
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setHighlightSections(false);
    setMultipleSelection(false);
    setSortable(false);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (settingByCode_ == 0)
            SendControlEvent(*this, HitEvent{.value = static_cast<SInt32>(selectedRows().size())});
    });
    connect(this, &QTreeView::doubleClicked, this, &ListView::sendChosen);
}

ListView::~ListView()
{
    setModel(nullptr);
}

void ListView::setColumns(std::vector<ListColumn> columns)
{
    model_->replace([&] { model_->columns = std::move(columns); });
    fitColumns();
}

QStringList ListView::columnTitles() const
{
    QStringList titles;
    for (const ListColumn& column : model_->columns)
        titles << column.title;
    return titles;
}

void ListView::setColumnTitles(const QStringList& titles)
{
    std::vector<ListColumn> columns;
    for (const QString& title : titles)
        columns.push_back({.title = title});
    if (!columns.empty())
        columns.back().stretches = true;
    setColumns(std::move(columns));
}

void ListView::fitColumns()
{
    for (int section = 0; section < model_->columnCount(); ++section) {
        const ListColumn& column = model_->columns[static_cast<std::size_t>(section)];
        const int contents = std::max(sizeHintForColumn(section), header()->sectionSizeHint(section));
        if (!column.stretches)
            header()->resizeSection(section, std::max(contents, column.minimumWidth));
    }
    stretchColumns();
}

// The room that the others leave goes to the stretching columns in equal shares, but none gets too narrow.
void ListView::stretchColumns()
{
    std::vector<int> stretching;
    int room = viewport()->width();
    for (int section = 0; section < model_->columnCount(); ++section) {
        if (model_->columns[static_cast<std::size_t>(section)].stretches)
            stretching.push_back(section);
        else
            room -= header()->sectionSize(section);
    }
    for (const int section : stretching) {
        const int share = room / static_cast<int>(stretching.size());
        header()->resizeSection(section,
                                std::max(share, model_->columns[static_cast<std::size_t>(section)].minimumWidth));
    }
}

void ListView::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    stretchColumns();
}

void ListView::setRows(std::vector<ListRow> rows)
{
    const auto count = static_cast<int>(rows.size());
    setRows(count, [rows = std::move(rows)](int row) { return rows[static_cast<std::size_t>(row)]; });
}

void ListView::setRows(int count, std::function<ListRow(int)> make)
{
    ++settingByCode_;
    const int place = verticalScrollBar()->value();
    model_->replace([&] { model_->setRows(static_cast<std::size_t>(count), std::move(make)); });
    fitColumns();
    executeDelayedItemsLayout(); // the scroll bar learns the number of rows
    verticalScrollBar()->setValue(place);
    --settingByCode_;
    viewport()->update();
}

int ListView::rowCount() const
{
    return model_->rowCount();
}

const std::vector<ListRow>& ListView::rows() const
{
    return model_->allRows();
}

std::vector<int> ListView::selectedRows() const
{
    QModelIndexList shown = selectionModel()->selectedRows();
    std::ranges::sort(shown, {}, &QModelIndex::row);
    std::vector<int> rows;
    for (const QModelIndex& index : shown)
        rows.push_back(order_->mapToSource(index).row());
    return rows;
}

void ListView::setSelectedRows(const std::vector<int>& rows)
{
    ++settingByCode_;
    selectRowsAsUser(rows);
    --settingByCode_;
}

void ListView::selectRowsAsUser(const std::vector<int>& rows)
{
    QItemSelection selection;
    for (const int row : rows) {
        const QModelIndex index = order_->mapFromSource(model_->index(row, 0));
        if (!index.isValid() || (!hasMultipleSelection() && !selection.empty()))
            continue;
        if (!selection.empty() && selection.back().bottom() + 1 == index.row()) // thousands of rows are one range
            selection.back() = QItemSelectionRange(selection.back().topLeft(), index);
        else
            selection.append(QItemSelectionRange(index));
    }
    constexpr auto kWholeRows = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    if (!selection.empty())
        selectionModel()->setCurrentIndex(selection.back().bottomRight(), QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, kWholeRows);
    if (!selection.empty())
        scrollTo(selection.front().topLeft());
}

bool ListView::hasMultipleSelection() const
{
    return selectionMode() == QAbstractItemView::ExtendedSelection;
}

void ListView::setMultipleSelection(bool multiple)
{
    setSelectionMode(multiple ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
}

void ListView::setSortable(bool sortable)
{
    header()->setSectionsClickable(sortable);
    header()->setSortIndicatorShown(false);
    header()->setSortIndicator(-1, Qt::AscendingOrder); // unsorted: as the rows were set
    setSortingEnabled(sortable);
}

void ListView::sortBy(int column, bool descending)
{
    sortByColumn(column, descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void ListView::setEmptyText(const QString& text)
{
    emptyText_ = text;
    viewport()->update();
}

void ListView::setRowDragging(RowDragging dragging)
{
    dragging_ = std::move(dragging);
    model_->canDrag = true;
    setDragDropMode(QAbstractItemView::InternalMove);
    setDragDropOverwriteMode(false);
    setDropIndicatorShown(true);
}

int ListView::rowBefore(const QDropEvent& event) const
{
    const std::vector<int> rows = selectedRows();
    if (event.source() != this || rows.size() != 1)
        return -1;
    const QPoint position = event.position().toPoint();
    const QModelIndex under = indexAt(position);
    const bool isLowerHalf = under.isValid() && position.y() > visualRect(under).center().y();
    const int before = under.isValid() ? under.row() + isLowerHalf : rowCount();
    return dragging_.allows(rows.front(), before) ? before : -1;
}

void ListView::dragMoveEvent(QDragMoveEvent* event)
{
    QTreeView::dragMoveEvent(event); // scrolls, and shows where it would go
    event->setAccepted(rowBefore(*event) >= 0);
}

void ListView::dropEvent(QDropEvent* event)
{
    const int before = rowBefore(*event);
    stopAutoScroll();
    setState(NoState);
    event->setDropAction(Qt::IgnoreAction); // else the view would take the row out of the model
    event->setAccepted(before >= 0);
    if (before >= 0)
        dragging_.move(selectedRows().front(), before);
    viewport()->update();
}

EventResult ListView::sendChosen(const QModelIndex& index)
{
    if (!index.isValid())
        return EventResult::NotHandled;
    const int row = order_->mapToSource(index).row();
    const SInt64 reference = model_->row(static_cast<std::size_t>(row)).reference;
    return SendControlEvent(*this, ItemChosenEvent{.position = row + 1, .ticketValue = static_cast<SInt32>(reference)});
}

void ListView::keyPressEvent(QKeyEvent* event)
{
    const bool returns = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (returns && currentIndex().isValid() && selectionModel()->isSelected(currentIndex())) {
        event->setAccepted(sendChosen(currentIndex()) != EventResult::NotHandled); // else it is the default button's
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void ListView::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (model_->rowCount() > 0 || emptyText_.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(ColorsOf(palette()).placeholder);
    constexpr int kInset = 16; // points
    const QRect room = viewport()->rect().adjusted(kInset, kInset, -kInset, -kInset);
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
}

} // namespace kesta
