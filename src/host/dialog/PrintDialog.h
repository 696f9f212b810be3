#pragma once

#include "host/dialog/DialogFields.h"
#include "host/dialog/DialogMemory.h"
#include "host/dialog/ElidedText.h"
#include "host/dialog/PaneArea.h"
#include "host/dialog/PrinterFinder.h"
#include "host/job/JobRequest.h"
#include "host/job/PrinterFacts.h"
#include "host/pane/Pane.h"
#include "host/script/ScriptPlayer.h"
#include "host/server/Submission.h"
#include "platform/printsystem/JobSettings.h"
#include "toolkit/controls/ControlEvent.h"

#include <memory>
#include <optional>

namespace kesta::host {

// What the dialog starts from.
struct DialogStart {
    JobRequest request = {};
    const Bundle* texts = nullptr;
    PlugInOrError plugIn = {};
    // Has an accepted job printed while the window shows how far that is; where it fails, the window stays. Without it,
    // the accepted job is all that is wanted, and its document may come later.
    SendFunction send = {};
    // Hear of what the window tells the user, and of what a user who is a script can't be asked. May be empty.
    std::function<void(const Message&)> failed = {};
    std::function<void(const Message&)> noted = {};
    bool scripted = false; // nobody is there to be asked for a file name
};

struct DialogOutcome {
    DialogEnd end = DialogEnd::Cancelled;
    std::optional<AcceptedJob> job = {}; // that was accepted
};

// The print dialog: its window, the chosen printer with its pane, and the job's tickets. It opens no document and
// prints nothing itself.
class PrintDialog : public QObject, public ScriptedDialog {
public:
    explicit PrintDialog(DialogStart start);
    ~PrintDialog() override;

    // Why the dialog can't be shown: its window can't be read. Nothing when it can.
    std::optional<Message> prepare();

    // Shows the window until the user prints or cancels.
    DialogOutcome run();

    QWidget& window() override { return *window_; }
    bool isBusy() const override { return finder_.isBusy() || finder_.isListing() || sending_.has_value(); }
    bool syncPane(bool toControls) override;
    QByteArray jobSettings() const override;
    QString summaryText() override;
    void updateSummary() override;
    std::optional<DialogEnd> end() const override { return end_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // PrintDialog.cpp: the window and its events
    void setUpWindow();
    EventResult handleHit(const HitEvent& hit);
    EventResult handleCommand(const CommandEvent& command);
    void showFields();
    QString jobName() const;

    // DialogPrinters.cpp: the printer and its pane
    void startPrinters();
    void fillPrinterChoice();
    void usePrinter(const DialogPrinter& printer);
    void choosePrinter(int position);
    void mergeSettings();
    void leavePrinter();
    void setAside(const JobTickets& chosen);
    void openPane(const JobTickets& chosen); // or says why there is none
    void recallPanel();
    void rememberDialog() const;
    void closePane(); // what the pane shows goes to the tickets first
    void enableButtons();
    PaneMessage whyNoPane() const;

    // DialogPrinting.cpp: what Print and Save Settings do
    EventResult print();
    bool acceptQueue() const;
    bool acceptPlainPrinting() const;
    void storeInTickets();
    bool settleNotOffered();
    bool settleUnknown();
    bool settleConflicts();
    bool saveSettingsTo(const QString& path);
    void saveSettings();
    std::optional<QString> askForFile(); // where to save; nothing when the user cancels
    bool saveAfterPrint();
    TicketReader ticketReader() const;
    std::optional<AcceptedJob> composeJob();
    void send();
    void sent(const SubmissionResult& result);
    void failed(const Message& reason, const QString& title);
    void failedToPrint(const Message& reason);
    void close(DialogEnd end);

    DialogStart start_;
    JobTickets& tickets_; // the request's settings
    PrintSession session_;
    std::unique_ptr<QWidget> window_;
    std::optional<PaneArea> paneArea_;
    std::optional<DialogFields> fields_;
    ElidedText* summary_ = nullptr; // of the window's summary line
    EventHandler handler_;          // before the pane's, which come first
    PrinterFinder finder_;
    std::optional<DialogPrinter> printer_;
    PrinterFacts facts_;  // of the printer
    Dictionary own_;      // what the settings got from the printer alone
    QStringList foreign_; // options that the settings say what the printer does not offer about
    JobOptions untaken_;  // of -o: those that no pane has shown yet
    // What the user chose for printers with the pane, while another one gets only what the window shows.
    std::optional<JobTickets> setAside_;
    bool hasMore_ = false; // set aside than the window shows
    DialogMemory memory_;
    std::optional<Pane> pane_;
    OSStatus paneStatus_ = noErr; // of the last attempt to open one
    std::optional<BackgroundTask> sending_;
    std::optional<AcceptedJob> accepted_;
    std::optional<DialogEnd> end_;
    bool hasFailed_ = false; // the last attempt to print or save
    bool summaryIsDue_ = false;
};

} // namespace kesta::host
