#pragma once

#include "host/job/HostTickets.h"

#include <QWidget>

#include <optional>

namespace kesta {
struct Bundle;
}

namespace kesta::host {

// The dialog's own controls above the pane: copies, pages, pages on a sheet, orientation.
class DialogFields {
public:
    DialogFields(QWidget& window, const Bundle& texts);

    void show(const HostSettings& settings);

    // What the controls say; the pages as they were when they can't be read. No word to the user.
    HostSettings settings() const;

    // Says what is wrong with the pages, if anything is, and leaves the focus there: false then.
    bool checkPages();

    // Keeps typed pages for the next time.
    void rememberPages() const;

private:
    QString typedPages() const; // empty for all

    QWidget* window_;
    const Bundle* texts_;
    HostSettings shown_; // what the controls don't hold: the job's name, upside-down orientations
};

} // namespace kesta::host
