#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace kesta::shell {

// Puts all its widgets at the same place: they fill the room that there is. Where there is less than they need, they
// keep their smallest size, and what is cut off is their right side and, evenly, top and bottom. Hidden widgets count
// for the width, so that the window stays as wide when another is shown, but not for the height: only a panel that is
// too high itself scrolls.
class CentredLayout : public QLayout {
public:
    explicit CentredLayout(QWidget& parent);
    ~CentredLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& room) override;

private:
    QSize roomFor(QSize (QLayoutItem::*needed)() const) const;

    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

// Where a pane goes in its parent: in the middle, but never to the left of it.
QPoint CentredPosition(QSize parent, QSize pane);

} // namespace kesta::shell
