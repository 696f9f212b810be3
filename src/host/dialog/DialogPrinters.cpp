// The chosen printer and its pane.

#include "host/dialog/PrintDialog.h"

#include "host/commandline/DialogOptions.h"
#include "host/dialog/DialogButtons.h"
#include "host/dialog/PrintDialogControls.h"
#include "platform/plugins/Bundle.h"
#include "platform/plugins/Sentence.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

constexpr char kMaker[] = "Kesta"; // whose printers the pane takes

} // namespace

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
        menu.items.push_back({.title = PrinterTitle(queue, *start_.texts)});
    choice->setEnabled(!menu.items.empty()); // nothing to choose from while printers are looked for
    choice->setMenu(std::move(menu));
    if (position)
        choice->setValue(position);
}

void PrintDialog::choosePrinter(int position)
{
    if (sending_ || (printer_ && !printer_->isQueue()))
        return;
    closePane();
    printer_.reset();
    enableButtons();
    finder_.choose(position);
}

void PrintDialog::usePrinter(const DialogPrinter& printer)
{
    closePane();
    printer_ = printer;
    session_.printer = PMPrinter{.queue = printer.queue.name,
                                 .name = PrinterTitle(printer.queue, *start_.texts),
                                 .ppdPath = printer.ppd.path,
                                 .deviceURI = printer.queue.deviceURI};
    if (!start_.request.deviceURI.isEmpty())
        session_.printer->deviceURI = start_.request.deviceURI;
    presetFromPrinter();
    openPane();
}

// What the panels read of the print system's own keys.
void PrintDialog::presetFromPrinter()
{
    Dictionary& choices = tickets_.printSettings.ppdDict();
    facts_ = printer_->ppd.path.isEmpty() ? PPDFacts{.problem = printer_->ppd.problem}
                                          : ReadPPDFacts(printer_->ppd.path, choices);
    PresetChoices(printer_->defaults, facts_, Preset::Fills, choices);
    PresetChoices(start_.request.presets.options, facts_, Preset::Prevails, choices);
    if (facts_.paper)
        WritePaperRect(*facts_.paper, tickets_.pageFormat);
    WriteInitialDuplexing(DuplexingOfChoice(facts_.duplexChoice), tickets_.printSettings);
    if (!printer_->isQueue() && !facts_.name.isEmpty())
        printer_->queue.displayName = facts_.name;
}

void PrintDialog::openPane()
{
    if (start_.plugIn.plugIn && facts_.problem.isEmpty())
        pane_.emplace(*start_.plugIn.plugIn, paneArea_->host(), session_);
    paneStatus_ = pane_ ? pane_->status() : noErr;
    if (paneStatus_ != noErr)
        pane_.reset();
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
    const QString stillWorks = start_.request.ppdPath.isEmpty() ? LocalizedString(texts, "Printing Still Works")
                                                                : LocalizedString(texts, "Saving Still Works");
    if (!start_.plugIn.plugIn)
        return {LocalizedString(texts, "No Plug-in Title"),
                LocalizedString(texts, "No Plug-in Message").arg(Sentence(start_.plugIn.error, texts), stillWorks)};
    const QString name = PrinterTitle(printer_->queue, texts);
    const QString& maker = facts_.manufacturer;
    const QString message =
        !facts_.problem.isEmpty()
            ? LocalizedString(texts, "No Description Message").arg(Sentence(facts_.problem, texts), stillWorks)
        : maker == QLatin1StringView(kMaker)
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
