#include "host/dialog/PrintDialog.h"

#include "host/dialog/DialogButtons.h"
#include "host/dialog/DialogSummary.h"
#include "host/dialog/PrintDialogControls.h"
#include "host/job/SettingsMerge.h"
#include "host/job/TicketTransport.h"
#include "platform/plugins/Bundle.h"
#include "platform/values/PropertyList.h"
#include "toolkit/windows/FitToScreen.h"
#include "toolkit/windows/InterfaceFile.h"
#include "toolkit/windows/ModalLoop.h"
#include "toolkit/windows/WindowSummary.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

constexpr QSize kUsualSize(640, 650);

void SendCommand(QWidget& window, FourCharCode command)
{
    SendControlEvent(window, CommandEvent{.command = command});
}

void AddPanelShortcuts(QWidget& window)
{
    const auto add = [&window](Qt::Key key, FourCharCode command) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | key), &window);
        QObject::connect(shortcut, &QShortcut::activated, &window,
                         [&window, command] { SendCommand(window, command); });
    };
    add(Qt::Key_PageDown, kCommandPanelUp); // "up" counts the panels up
    add(Qt::Key_PageUp, kCommandPanelDown);
}

} // namespace

PrintDialog::PrintDialog(DialogStart start)
    : start_(std::move(start)),
      tickets_(*start_.request.settings),
      finder_(*start_.texts, {.address = start_.request.server},
              {.listChanged = [this] { fillPrinterChoice(); },
               .word = [this](const PaneMessage& message) { paneArea_->showMessage(message); },
               .found = [this](const DialogPrinter& printer) { usePrinter(printer); }})
{
    untaken_ = start_.request.presets.options;
    AddToSession(tickets_, session_);
    session_.canCarry = [](const Dictionary& printSettings) {
        return !EncodeTicket(WritePropertyList(printSettings)).options.empty();
    };
}

PrintDialog::~PrintDialog()
{
    pane_.reset();
}

std::optional<Message> PrintDialog::prepare()
{
    window_ = CreateWindowFromNib(*start_.texts, "PrintDialog", "Window");
    if (!window_)
        return Say("Window Unreadable");
    setUpWindow();
    return std::nullopt;
}

QString PrintDialog::jobName() const
{
    return start_.request.title.value_or(start_.request.document.value_or(QString()));
}

void PrintDialog::setUpWindow()
{
    const Bundle& texts = *start_.texts;
    const QString job = jobName();
    window_->setWindowTitle(job.isEmpty() ? LocalizedString(texts, "Window Title No Document")
                                          : LocalizedString(texts, "Window Title").arg(job));
    OrderButtons(*window_);
    window_->resize(kUsualSize.boundedTo(RoomOnScreen(*window_)));

    paneArea_.emplace(*window_);
    fields_.emplace(*window_, texts);
    if (auto* label = FindControlAs<QLabel>(window_.get(), {kPrintSignature, kSummaryLine}))
        summary_ = new ElidedText(*label);
    handler_ = InstallEventHandler(
        *window_, [this](const HitEvent& hit) { return handleHit(hit); },
        [this](const CommandEvent& command) { return handleCommand(command); });
    AddPanelShortcuts(*window_);
    if (!start_.request.ppdPath.isEmpty()) { // nothing is submitted
        SetControlText(FindControl(window_.get(), {kPrintSignature, kPrintButton}), LocalizedString(texts, "Save"));
        SetControlVisible(FindControl(window_.get(), {kPrintSignature, kSaveSettingsButton}), false);
    }
}

// Starts with what the caller has set over what the settings say.
void PrintDialog::showFields()
{
    HostSettings settings =
        StartingSettings(start_.request.presets, ReadTickets(tickets_.printSettings, tickets_.pageFormat));
    settings.jobName = jobName();
    fields_->show(settings);
    WriteTickets(settings, tickets_.printSettings, tickets_.pageFormat);
}

DialogOutcome PrintDialog::run()
{
    if (!start_.scripted) // a script begins where every other begins
        memory_ = RecallDialog();
    showFields();
    startPrinters();
    qApp->installEventFilter(this);
    if (auto* copies = FindControlAs<QAbstractSpinBox>(window_.get(), {kPrintSignature, kCopiesField})) {
        copies->setFocus();
        copies->selectAll();
    }
    RunModalLoop(*window_);
    qApp->removeEventFilter(this);
    sending_.reset();
    if (!start_.scripted)
        rememberDialog();
    pane_.reset(); // Cancel: nothing more goes to the tickets
    if (!end_)     // the window was closed
        close(hasFailed_ ? DialogEnd::Failed : DialogEnd::Cancelled);
    return {*end_, end_ == DialogEnd::Accepted ? std::move(accepted_) : std::nullopt};
}

void PrintDialog::close(DialogEnd end)
{
    end_ = end;
    EndModalLoop(*window_, end == DialogEnd::Accepted ? ModalResult::OK : ModalResult::Cancel);
}

EventResult PrintDialog::handleHit(const HitEvent& hit)
{
    if (hit.control.signature != kPrintSignature)
        return EventResult::NotHandled;
    switch (hit.control.number) {
    case kPrinterChoice:
        choosePrinter(hit.value);
        return EventResult::Handled;
    case kPerSheetChoice: // panels that it concerns look at the ticket
        WriteTickets(fields_->settings(), tickets_.printSettings, tickets_.pageFormat);
        return EventResult::NotHandled;
    case kTryAgainButton:
        startPrinters();
        return EventResult::Handled;
    case kStopButton:
        if (sending_)
            sending_->cancel();
        return EventResult::Handled;
    case kSaveSettingsButton:
        saveSettings();
        return EventResult::Handled;
    default:
        return EventResult::NotHandled;
    }
}

EventResult PrintDialog::handleCommand(const CommandEvent& command)
{
    switch (command.command) {
    case kCommandOK:
        return print();
    case kCommandCancel:
        if (sending_)
            sending_->cancel();
        else
            close(hasFailed_ ? DialogEnd::Failed : DialogEnd::Cancelled);
        return EventResult::Handled;
    default:
        return EventResult::NotHandled;
    }
}

bool PrintDialog::syncPane(bool toControls)
{
    if (!toControls) {
        storeInTickets();
        return pane_.has_value();
    }
    fields_->show(ReadTickets(tickets_.printSettings, tickets_.pageFormat));
    if (pane_)
        pane_->syncToControls();
    return pane_.has_value();
}

QByteArray PrintDialog::jobSettings() const
{
    return WriteJobSettings(tickets_);
}

QString PrintDialog::summaryText()
{
    QStringList phrases;
    if (pane_) {
        phrases = WindowSummary(paneArea_->host());
        for (const PaneSummary& summary : pane_->summaries())
            phrases << SummaryFacts(summary.text).join(u", "_s);
    }
    return SummaryLine(fields_->settings(), phrases, *start_.texts);
}

void PrintDialog::updateSummary()
{
    summaryIsDue_ = false;
    if (summary_)
        summary_->setText(summaryText());
}

// What a person does anywhere in our windows may change the summary.
bool PrintDialog::eventFilter(QObject*, QEvent* event)
{
    const bool isAction = event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyRelease ||
                          event->type() == QEvent::Wheel;
    if (isAction && !summaryIsDue_) {
        summaryIsDue_ = true;
        QMetaObject::invokeMethod(
            this, [this] { updateSummary(); }, Qt::QueuedConnection);
    }
    return false;
}

} // namespace kesta::host
