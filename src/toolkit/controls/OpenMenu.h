#pragma once

#include <QElapsedTimer>
#include <QMenu>

namespace kesta {

// A menu in which Home and End go to the first and the last item, and typing goes to the item that begins so, in the
// menu as in the pop-up that it belongs to.
class OpenMenu : public QMenu {
    Q_OBJECT

public:
    using QMenu::QMenu;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void goTo(QList<QAction*> candidates);
    bool goByTyping(const QKeyEvent& key);

    QString typed_; // the beginning of a title, as typed so far
    QElapsedTimer sinceTyped_;
};

// Whether the key writes the beginning of a title, or goes on with it: a blank does the latter only.
bool WritesTitle(const QKeyEvent& key, bool goesOn);
// Whether what is typed now goes on with what was typed before.
bool GoesOn(const QElapsedTimer& sinceTyped);

} // namespace kesta
