#pragma once

#include "toolkit/controls/ControlEvent.h"

#include <QTreeView>

#include <functional>
#include <memory>
#include <vector>

namespace kesta {

struct ListColumn {
    QString title;
    int minimumWidth = 0;   // points
    bool stretches = false; // takes the room that is left; the others fit their contents
};

struct ListRow {
    std::vector<QString> cells;
    SInt64 reference = 0; // what the row stands for
    QString spoken = {};  // the whole row for screen readers; empty: cell by cell
};

// Dragging the one selected row to another place: before the row of that number, from 0 to the number of rows.
struct RowDragging {
    std::function<bool(int row, int before)> allows;
    std::function<void(int row, int before)> move;
};

// Rows of texts in columns. Rows are numbered from 0 in the order in which they were set, however the view sorts them.
// A user's new selection sends a hit with the number of selected rows, a double click or Return the item chosen.
class ListView : public QTreeView {
    Q_OBJECT
    Q_PROPERTY(QStringList columns READ columnTitles WRITE setColumnTitles)
    Q_PROPERTY(bool multipleSelection READ hasMultipleSelection WRITE setMultipleSelection)
    Q_PROPERTY(bool sortable READ isSortingEnabled WRITE setSortable)
    Q_PROPERTY(QString emptyText READ emptyText WRITE setEmptyText)

public:
    explicit ListView(QWidget* parent = nullptr);
    ~ListView() override;

    void setColumns(std::vector<ListColumn> columns);
    QStringList columnTitles() const;
    void setColumnTitles(const QStringList& titles); // the last one stretches

    void setRows(std::vector<ListRow> rows); // nothing is selected then
    const std::vector<ListRow>& rows() const;
    // For many rows: each is made when it is first needed. The place in the view stays.
    void setRows(int count, std::function<ListRow(int row)> make);
    int rowCount() const;
    void setRowDragging(RowDragging dragging);

    std::vector<int> selectedRows() const; // as shown from top to bottom
    void setSelectedRows(const std::vector<int>& rows);
    void selectRowsAsUser(const std::vector<int>& rows);

    bool hasMultipleSelection() const;
    void setMultipleSelection(bool multiple);

    // By a click on a column's title: in the language's order, numbers in texts by their value.
    void setSortable(bool sortable);
    void sortBy(int column, bool descending);

    QString emptyText() const { return emptyText_; }
    void setEmptyText(const QString& text); // shown in place of rows: how to fill the list

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    class Model;
    class Order;
    EventResult sendChosen(const QModelIndex& index);
    int rowBefore(const QDropEvent& event) const; // that a drop there would put a row before; -1 when it may not
    void fitColumns();
    void stretchColumns();

    std::unique_ptr<Model> model_;
    std::unique_ptr<Order> order_;
    RowDragging dragging_;
    QString emptyText_;
    int settingByCode_ = 0;
};

} // namespace kesta
