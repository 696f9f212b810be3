#pragma once

#include "platform/system/Service.h"

#include <QString>
#include <QStringList>

namespace kesta {

// A caution that a person reads and closes. The texts are localized already.
struct Notice {
    QString title;
    QString message;
    QString button = {}; // empty: the viewer's own word for OK
};

// A question; buttons in order of importance, the first is the default one.
struct Alert {
    QString title;
    QString message;
    QStringList buttons;
    int cancelButton = -1; // the button that Escape presses; -1 for the last
};

class Notices {
public:
    using Interface = Notices;
    virtual ~Notices() = default;

    virtual void show(const Notice& notice) = 0;
    virtual int ask(const Alert& alert) = 0; // the position of the button, from 0

    // What GetNotices() answers from now on; null for the one without windows. Returns what was installed before, null
    // for none.
    static Notices* install(Notices* notices);
};

// Without windows, texts go to standard error and every question is answered with its cancel button.
Notices& GetNotices();

// The answer that leaves everything as it is.
int CancelButtonOf(const Alert& alert);

} // namespace kesta
