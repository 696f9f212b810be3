#pragma once

#include <QTabBar>

namespace kesta {

// A strip of tabs; its value is the shown tab's position from 1, 0 without tabs. The panes are controls of their own. A
// user's new choice sends a hit.
class TabControl : public QTabBar {
    Q_OBJECT
    Q_PROPERTY(QStringList titles READ titles WRITE setTitles)

public:
    explicit TabControl(QWidget* parent = nullptr);

    QStringList titles() const;
    void setTitles(const QStringList& titles);

    int value() const { return currentIndex() + 1; }
    void setValue(int position);  // sends nothing
    bool chooseTab(int position); // as the user would

private:
    int settingByCode_ = 0;
};

} // namespace kesta
