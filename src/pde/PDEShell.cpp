#include "pde/PDEShell.h"

#include "pde/MenuUtilities.h"
#include "pde/TicketUtilities.h"
#include "toolkit/InterfaceFile.h"

#include <memory>

namespace kesta::shell {
namespace {

QWidget* FindHere(const PDEShellContext& shell, Control number)
{
    return FindControl(shell.parentPane, {kSignature, number});
}

PopupButton* PanelChoice(const PDEShellContext& shell)
{
    return FindPopupButton(shell.parentPane, {kSignature, kPanelChoice});
}

void FillPanelChoice(const PDEShellContext& shell)
{
    PopupButton* choice = PanelChoice(shell);
    if (!choice)
        return;
    Menu menu;
    for (const PanelRecord& panel : shell.panels) {
        if (panel.index != kTakesNoPart)
            menu.items.push_back({.title = panel.title, .value = panel.index});
    }
    choice->setMenu(std::move(menu));
}

void SelectAndShowInChoice(SInt32 index, PDEShellContext& shell)
{
    selectPanel(index, shell);
    if (PopupButton* choice = PanelChoice(shell))
        choice->setValue(index);
}

SInt32 NextPanel(const PDEShellContext& shell)
{
    const SInt32 next = GetShownPanel()._lastTabIndex + 1;
    return next > static_cast<SInt32>(shell.panels.size()) ? 1 : next;
}

SInt32 PreviousPanel(const PDEShellContext& shell)
{
    const SInt32 previous = GetShownPanel()._lastTabIndex - 1;
    return previous < 1 ? static_cast<SInt32>(shell.panels.size()) : previous;
}

EventResult HandleHit(PDEShellContext& shell, const HitEvent& hit)
{
    if (hit.control.signature != kSignature)
        return EventResult::NotHandled;
    switch (hit.control.number) {
    case kPanelChoice:
        if (hit.value == GetShownPanel()._lastTabIndex)
            return EventResult::NotHandled;
        selectPanel(hit.value, shell);
        return EventResult::Handled;
    case kNextButton:
        SelectAndShowInChoice(NextPanel(shell), shell);
        return EventResult::Handled;
    case kPreviousButton:
        SelectAndShowInChoice(PreviousPanel(shell), shell);
        return EventResult::Handled;
    default:
        return EventResult::NotHandled;
    }
}

} // namespace

ShownPanel& GetShownPanel()
{
    static ShownPanel shown;
    return shown;
}

PDEShellContext::~PDEShellContext()
{
    for (const PanelRecord& panel : panels)
        panel.interface.Terminate(panel.context, noErr);
}

void LoadPanels(PDEShellContext& shell, std::span<const PanelInterfaceFunction> functions)
{
    GetShownPanel().gCurrentPanel = 0;
    while (shell.panels.size() < functions.size()) {
        const PanelInterfaceHolder* holder = nullptr;
        KestaPrologue prologue{};
        if (functions[shell.panels.size()](&holder) != noErr || holder->table->Prologue(&prologue) != noErr)
            continue;
        shell.panels.push_back({.interface = *holder->table,
                                .context = prologue.context,
                                .title = QString::fromUtf8(prologue.title),
                                .kind = QString::fromUtf8(prologue.kind),
                                .userPane = {},
                                .index = static_cast<SInt32>(shell.panels.size()) + 1});
    }
}

OSStatus Initialize(PDEShellContext& shell, QWidget& parentPane, PrintSession& session)
{
    shell.parentPane = &parentPane;
    shell.session = &session;
    SetCurrentPrintSession(&session);
    for (PanelRecord& panel : shell.panels) {
        if (panel.index == kTakesNoPart)
            continue;
        panel.userPane = new QWidget(&parentPane);
        SetControlID(*panel.userPane, {kSignature, panel.index});
        panel.userPane->hide();
        panel.interface.Initialize(panel.context, nullptr, nullptr, panel.userPane, &session);
    }
    return Sync(shell, session, SyncDirection::TicketsToControls);
}

OSStatus Open(PDEShellContext& shell)
{
    shell.handler = InstallEventFunction(
        *shell.parentPane, [&shell](const ControlEvent& event) { return pdeShellEventHandler(shell, event); });
    if (!shell.opened) {
        std::unique_ptr<QWidget> window = CreateWindowFromNib(*shell.bundle, "PDE_Shell", "Window");
        if (!window)
            return kInvalidContext;
        shell.opened = true;
        EmbedAndShowControl(std::move(window), *shell.parentPane);
        FillPanelChoice(shell);
        for (PanelRecord& panel : shell.panels) {
            if (panel.userPane)
                EmbedControl(*panel.userPane, FindHere(shell, kPanelArea));
        }
    }
    for (PanelRecord& panel : shell.panels)
        panel.interface.Open(panel.context);

    if (GetShownPanel().gCurrentPanel == 0)
        GetShownPanel().gCurrentPanel = 1;
    SelectAndShowInChoice(GetShownPanel().gCurrentPanel, shell);
    return noErr;
}

void selectPanel(SInt32 index, PDEShellContext& shell)
{
    ShownPanel& shown = GetShownPanel();
    QWidget* frame = FindHere(shell, kPanelFrame);

    for (PanelRecord& panel : shell.panels) {
        if (panel.index == shown._lastTabIndex)
            panel.interface.Sync(panel.context, shell.session, false);
    }
    SetControlVisible(frame, false);
    for (PanelRecord& panel : shell.panels) {
        if (panel.index != shown._lastTabIndex && panel.index != kTakesNoPart)
            panel.interface.Sync(panel.context, shell.session, true);
    }
    for (PanelRecord& panel : shell.panels) {
        SetControlVisible(panel.userPane, panel.index == index);
        SetControlEnabled(panel.userPane, panel.index == index);
    }
    shown.gCurrentPanel = index;
    shown._lastTabIndex = index;
    SetControlVisible(frame, true);
}

EventResult pdeShellEventHandler(PDEShellContext& shell, const ControlEvent& event)
{
    if (const auto* hit = std::get_if<HitEvent>(&event))
        return HandleHit(shell, *hit);
    const auto* command = std::get_if<CommandEvent>(&event);
    if (!command)
        return EventResult::NotHandled;
    if (command->command == kCommandPanelUp) // to the next panel, although the button with the up image goes back
        SelectAndShowInChoice(NextPanel(shell), shell);
    else if (command->command == kCommandPanelDown)
        SelectAndShowInChoice(PreviousPanel(shell), shell);
    return EventResult::NotHandled;
}

} // namespace kesta::shell
