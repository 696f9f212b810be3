#pragma once

#include "host/pane/PlugInHost.h"
#include "platform/printsystem/PrintSession.h"
#include "platform/values/Types.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <vector>

namespace kesta::host {

struct PaneSummary {
    QString title;
    QString text; // may have several lines
};

// One pane of the plug-in from Prologue to Terminate. The dialog's own handlers must be installed on the window before,
// so that the pane's come first.
class Pane {
public:
    // Prologue, Initialize and Open in a widget of its own inside the host widget. When one of them fails the pane is
    // terminated and status() says with what; every other operation then does nothing.
    Pane(const PlugIn& plugIn, QWidget& host, PrintSession& session);
    ~Pane(); // Close and Terminate
    Pane(const Pane&) = delete;
    Pane& operator=(const Pane&) = delete;

    OSStatus status() const { return status_; }
    QString title() const { return title_; }
    void syncToTickets();
    void syncToControls();
    std::vector<PaneSummary> summaries();

private:
    OSStatus openIn(QWidget& host);
    void sync(bool toControls);

    PrintSession& session_;
    KestaPlugIn* plugIn_ = nullptr;
    KestaDialogExtension* extension_ = nullptr;
    KestaContextRef context_ = nullptr;
    QPointer<QWidget> widget_;
    QString title_;
    OSStatus status_ = kInvalidContext;
    bool prepared_ = false; // the Prologue succeeded
};

} // namespace kesta::host
