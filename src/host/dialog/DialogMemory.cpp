#include "host/dialog/DialogMemory.h"

#include "platform/system/UserPreferences.h"
#include "toolkit/controls/Controls.h"

namespace kesta::host {
namespace {

constexpr char kDialogFile[] = "com.kesta.print.dialog.plist";
constexpr char kPrinter[] = "Printer";
constexpr char kPanel[] = "Panel";
constexpr qsizetype kLongestName = 1024; // more is no queue's
constexpr SInt32 kPanelChoice = 16;      // the number of the control that every pane shows its panels with

PopupButton* PanelChoice(const QWidget& paneHost)
{
    for (auto* popup : paneHost.findChildren<PopupButton*>()) {
        if (GetControlID(*popup).number == kPanelChoice)
            return popup;
    }
    return nullptr;
}

} // namespace

DialogMemory RecallDialog()
{
    DialogMemory memory;
    const std::optional<Dictionary> kept = CopyUserPreferences(kDialogFile);
    if (!kept)
        return memory;
    if (const QString* printer = kept->string(kPrinter); printer && printer->size() <= kLongestName)
        memory.printer = *printer;
    if (const Number* panel = kept->number(kPanel))
        memory.panel = panel->as<SInt32>().value_or(0);
    return memory;
}

void RememberDialog(const DialogMemory& memory)
{
    std::optional<Dictionary> kept = CopyUserPreferences(kDialogFile);
    if (!kept)
        return;
    const Dictionary before = *kept;
    if (!memory.printer.isEmpty())
        kept->set(kPrinter, memory.printer);
    if (memory.panel > 0)
        kept->set(kPanel, Number::Index(memory.panel));
    if (!(*kept == before))
        WriteUserPreferences(kDialogFile, *kept);
}

SInt32 ShownPanel(const QWidget& paneHost)
{
    const PopupButton* choice = PanelChoice(paneHost);
    return choice ? choice->value() : 0;
}

void ShowPanel(const QWidget& paneHost, SInt32 panel)
{
    PopupButton* choice = PanelChoice(paneHost);
    if (choice && panel != choice->value())
        choice->chooseItem(panel);
}

} // namespace kesta::host
