// The chosen printer and its pane.

#include "host/dialog/PrintDialog.h"

#include "host/dialog/DialogButtons.h"
#include "host/dialog/PrintDialogControls.h"
#include "host/job/SettingsMerge.h"
#include "host/job/TwoSided.h"
#include "host/ppd/PPDFacts.h"
#include "platform/plugins/Bundle.h"
#include "platform/plugins/Sentence.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace kesta::host {
void PrintDialog::startPrinters()
{
    const JobRequest& request = start_.request;
    if (request.ppdPath.isEmpty()) {
        finder_.start(request.queue, memory_.printer);
        enableButtons();
        return;
    }
    DialogPrinter printer;
    printer.queue.displayName = QFileInfo(request.ppdPath).fileName();
    printer.queue.deviceURI = request.deviceURI;
    printer.ppd.path = request.ppdPath;
    usePrinter(printer);
    fillPrinterChoice();
}

// Of this window's first pane: another printer's shows the panel that the plug-in has in front.
void PrintDialog::recallPanel()
{
    if (pane_ && memory_.panel > 0)
        ShowPanel(paneArea_->host(), std::exchange(memory_.panel, 0));
}

void PrintDialog::rememberDialog() const
{
    const bool hasPrinted = end_ == DialogEnd::Accepted && printer_ && printer_->isQueue();
    const Queue queue = hasPrinted ? printer_->queue : Queue();
    RememberDialog({.printer = queue.instance.isEmpty() ? queue.name : queue.name + u'/' + queue.instance,
                    .panel = pane_ ? ShownPanel(paneArea_->host()) : 0});
}

void PrintDialog::fillPrinterChoice()
{
    PopupButton* choice = FindPopupButton(window_.get(), {kPrintSignature, kPrinterChoice});
    if (!choice)
        return;
    Menu menu;
    int position = finder_.position();
    if (printer_ && !printer_->isQueue()) {
        menu.items.push_back({.title = printer_->queue.displayName});
        position = 1;
    }
    for (const Queue& queue : finder_.queues())
        menu.items.push_back({.title = PrinterInList(queue, *start_.texts)});
    choice->setEnabled(!menu.items.empty()); // nothing to choose from while printers are looked for
    if (!position && !menu.items.empty()) {  // no other printer's name in the place of the one that was asked for
        const QString& asked = finder_.asked();
        menu.items.push_back({.title = asked.isEmpty() ? LocalizedString(*start_.texts, "No Printer Chosen") : asked,
                              .enabled = false,
                              .notOffered = !asked.isEmpty()});
        position = menu.count();
    }
    choice->setMenu(std::move(menu));
    choice->setValue(position);
}

void PrintDialog::choosePrinter(int position)
{
    if (sending_ || (printer_ && !printer_->isQueue()))
        return;
    leavePrinter();
    printer_.reset();
    enableButtons();
    finder_.choose(position);
}

void PrintDialog::usePrinter(const DialogPrinter& printer)
{
    leavePrinter();
    printer_ = printer;
    session_.printer = PMPrinter{.queue = printer.queue.name,
                                 .name = PrinterTitle(printer.queue, *start_.texts),
                                 .ppdPath = printer.ppd.path,
                                 .deviceURI = printer.queue.deviceURI};
    if (!start_.request.deviceURI.isEmpty())
        session_.printer->deviceURI = start_.request.deviceURI;
    facts_ = printer_->ppd.path.isEmpty() ? PrinterFacts{.problem = printer_->ppd.problem}
                                          : ReadPPDFacts(printer_->ppd.path);
    if (!printer_->isQueue() && !facts_.name.isEmpty())
        printer_->queue.displayName = facts_.name;
    JobTickets chosen;
    CopyTickets(tickets_, chosen);
    mergeSettings();
    openPane(chosen);
}

// The settings are then what the user chose, and nothing of the printer's.
void PrintDialog::leavePrinter()
{
    closePane();
    if (setAside_) {
        CopyTickets(*setAside_, tickets_);
        setAside_.reset();
        WriteTickets(fields_->settings(), tickets_.printSettings, tickets_.pageFormat);
    }
    WithdrawChoices(own_, tickets_.printSettings);
    own_ = {};
}

// What the panels read: the settings with what the printer and the command line say, and what follows from all that.
void PrintDialog::mergeSettings()
{
    const SettingSources sources{.queueDefaults = printer_->defaults, .commandLine = untaken_};
    own_ = PrintersOwnChoices(sources, facts_, tickets_);
    MergeSettings(sources, facts_, tickets_);
    Ticket& settings = tickets_.printSettings;
    foreign_.clear();
    for (const auto& [keyword, choice] : settings.ppdDict()) {
        if (choice.string() && !facts_.offers(keyword, *choice.string()))
            foreign_ << keyword;
    }
    if (const auto paper = ReadPaper(printer_->ppd.path, settings.ppdDict()))
        WritePaperRect(*paper, tickets_.pageFormat);
    const auto byDefault = facts_.defaults.find(kDuplexOption);
    const QString choice = byDefault == facts_.defaults.end() ? QString() : byDefault->second;
    WriteInitialDuplexing(DuplexingOf(settings).value_or(DuplexingOfChoice(choice)), settings);
}

// Of a job for a printer without the pane remains what the window shows.
void PrintDialog::setAside(const JobTickets& chosen)
{
    own_ = {};
    CopyTickets(chosen, setAside_.emplace());
    hasMore_ = !CopyFields(chosen, tickets_);
    MergeSettings({.commandLine = start_.request.presets.options}, facts_, tickets_);
}

void PrintDialog::openPane(const JobTickets& chosen)
{
    if (start_.plugIn.plugIn && facts_.problem.isEmpty())
        pane_.emplace(*start_.plugIn.plugIn, paneArea_->host(), session_);
    paneStatus_ = pane_ ? pane_->status() : noErr;
    if (paneStatus_ != noErr)
        pane_.reset();
    if (pane_)
        std::erase_if(untaken_, [this](const JobOption& option) { return IsTaken(option, facts_); });
    else
        setAside(chosen);
    recallPanel();
    if (pane_)
        paneArea_->showPane();
    else
        paneArea_->showMessage(whyNoPane());
    paneArea_->placeInFocusOrder(ButtonsInOrder(*window_));
    enableButtons();
    updateSummary();
}

// What can't be done now can't be pressed: without a printer there is nothing to print to, without a pane no help.
void PrintDialog::enableButtons()
{
    SetControlEnabled(FindControl(window_.get(), {kPrintSignature, kHelpButton}), pane_.has_value());
    SetControlEnabled(FindControl(window_.get(), {kPrintSignature, kPrintButton}), printer_ && !sending_);
}

PaneMessage PrintDialog::whyNoPane() const
{
    const Bundle& texts = *start_.texts;
    const QString works = start_.request.ppdPath.isEmpty() ? LocalizedString(texts, "Printing Still Works")
                                                           : LocalizedString(texts, "Saving Still Works");
    const QString stillWorks = hasMore_ ? LocalizedString(texts, "Other Choices Kept").arg(works) : works;
    if (!start_.plugIn.plugIn)
        return {LocalizedString(texts, "No Plug-in Title"),
                LocalizedString(texts, "No Plug-in Message").arg(Sentence(start_.plugIn.error, texts), stillWorks)};
    const QString name = PrinterTitle(printer_->queue, texts);
    const QString& maker = facts_.manufacturer;
    const QString message =
        !facts_.problem.isEmpty()
            ? LocalizedString(texts, "No Description Message").arg(Sentence(facts_.problem, texts), stillWorks)
        : facts_.suitsPane()
            ? LocalizedString(texts, "Pane Failed Message").arg(name, QString::number(paneStatus_), stillWorks)
        : maker.isEmpty() ? LocalizedString(texts, "No Maker Message").arg(name, stillWorks)
                          : LocalizedString(texts, "Other Maker Message").arg(name, maker, stillWorks);
    return {LocalizedString(texts, "Plain Options Title"), message};
}

void PrintDialog::closePane()
{
    if (!pane_)
        return;
    pane_->syncToTickets();
    pane_.reset();
}

} // namespace kesta::host
