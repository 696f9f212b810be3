#pragma once

#include "platform/values/Types.h"

#include <QString>
#include <QWidget>

#include <vector>

namespace kesta::host {

// What stands in the middle of the window when there is no pane.
struct PaneMessage {
    QString title;
    QString text = {};
    bool canTryAgain = false;
};

// The middle of the window: either the pane, which scrolls up and down only, or a message, or the progress of sending.
class PaneArea {
public:
    explicit PaneArea(QWidget& window);

    QWidget& host() const { return *host_; } // where panes live
    void showPane();
    void showMessage(const PaneMessage& message);
    // Bytes; a total of 0 is not known yet.
    void showProgress(const PaneMessage& message, SInt64 sent, SInt64 total);
    // Keeps the focus order that a reader expects: what is above, the pane, then the given widgets.
    void placeInFocusOrder(const std::vector<QWidget*>& below);

private:
    void showPage(QWidget* page);

    QWidget* window_;
    QWidget* area_;
    QWidget* host_;
};

} // namespace kesta::host
