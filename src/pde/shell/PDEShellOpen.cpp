#include "pde/shell/PDEShell.h"

#include "pde/menus/SystemUtilities.h"
#include "pde/shell/CentredLayout.h"
#include "platform/plugins/Bundle.h"
#include "printer/DeviceProfile.h"
#include "printer/InstallableOptions.h"
#include "printer/PPDUtilities.h"
#include "product/InstalledFeatures.h"
#include "toolkit/controls/ControlProperties.h"
#include "toolkit/style/Pictures.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QAbstractButton>
#include <QDir>
#include <QPushButton>

#include <cstdio>

namespace kesta::shell {
namespace {

constexpr char kManufacturer[] = "Kesta";
constexpr char kInterfaceFile[] = "PDE_Shell";
constexpr char kWindow[] = "Window";

QWidget* FindHere(const PDEShellContext& shell, Control number)
{
    return FindControl(shell.parentPane, {kSignature, number});
}

bool IsOurPrinter(const ppd_file_t* ppd)
{
    return PPDCopyManufacturer(ppd) == QLatin1StringView(kManufacturer);
}

EventHandler InstallShellHandler(PDEShellContext& shell, QWidget& target)
{
    return InstallEventHandler(
        target, [&shell](const HitEvent& hit) { return pdeShellEventHandler(shell, hit); },
        [&shell](const CommandEvent& command) {
            // From Open to Close the commands have a handler of their own; taking them here, too, would go two panels
            // on.
            return shell.commandHandler ? EventResult::NotHandled : pdeShellEventHandler(shell, command);
        });
}

// Before 10.5 a window did not see what happened to the buttons in it.
void InstallDialogHandlers(PDEShellContext& shell)
{
    if (RunningOn105OrLater()) {
        shell.dialogHandlers.push_back(InstallShellHandler(shell, *shell.parentPane->window()));
        return;
    }
    for (QWidget* button : {shell.defaultButton.data(), shell.cancelButton.data()}) {
        if (button)
            shell.dialogHandlers.push_back(InstallShellHandler(shell, *button));
    }
}

void TakeDialogButtons(PDEShellContext& shell)
{
    shell.defaultButton = GetWindowDefaultButton(*shell.parentPane->window());
    shell.cancelButton = GetWindowCancelButton(*shell.parentPane->window());
    if (shell.defaultButton)
        SetControlBundle(*shell.defaultButton, kCreator, shell.bundle);
}

std::unique_ptr<QWidget> CreateShellWindow(const Bundle& bundle)
{
    if (!QDir(bundle.resourcesPath).exists(QLatin1StringView(kInterfaceFile))) {
        std::fputs("Initialize()::CreateNibReferenceWithCFBundle() failed.\n", stderr);
        return nullptr;
    }
    std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, kInterfaceFile, kWindow);
    if (!window)
        std::fputs("Initialize()::CreateWindowFromNib() failed.\n", stderr);
    return window;
}

// A hidden pane for each panel, with the bounds of the area that it will lie in.
void InitializePanels(PDEShellContext& shell, const SInt32* flags, void* reference, const QRect& bounds)
{
    for (PanelRecord& panel : shell.panels) {
        if (panel.index == kTakesNoPart)
            continue;
        panel.userPane = new QWidget(shell.parentPane);
        panel.userPane->setGeometry(bounds);
        SetControlID(*panel.userPane, {kUserPaneSignature, panel.index});
        panel.userPane->hide();
        panel.interface.Initialize(panel.context, flags, reference, panel.userPane, shell.session);
    }
}

// Embeds the child among others that share the parent's room.
void EmbedCentred(QWidget* child, QWidget* parent)
{
    if (!child || !parent)
        return;
    if (!parent->layout())
        new CentredLayout(*parent);
    parent->layout()->addWidget(child);
}

void TakeShellPane(PDEShellContext& shell)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(*shell.bundle, kInterfaceFile, kWindow);
    shell.shellPane = FindControl(window.get(), {kSignature, kShellPane});
    if (!shell.shellPane)
        return;
    EmbedCentred(shell.shellPane, shell.parentPane);
    shell.shellPane->show();
    shell.paneHandler = InstallEventHandler(
        *shell.shellPane, [&shell](const HitEvent& hit) { return pdeShellEventHandler(shell, hit); },
        [&shell](const MenuEnableItemsEvent& opening) { return pdeShellEventHandler(shell, opening); });
}

void FillPanelChoice(const PDEShellContext& shell)
{
    PopupButton* choice = FindPopupButton(shell.parentPane, {kSignature, kPanelChoice});
    if (!choice)
        return;
    Menu menu;
    for (const PanelRecord& panel : shell.panels) {
        if (panel.index != kTakesNoPart)
            menu.items.push_back({.title = panel.title, .value = panel.index});
    }
    choice->setMenu(std::move(menu));
    for (const SInt32 button : {kPreviousButton, kNextButton})
        SetControlEnabled(FindControl(shell.parentPane, {kSignature, button}), choice->maximum() > 1);
}

// A button without its picture would be a riddle.
void SetButtonPicture(const PDEShellContext& shell, Control number, const char* file)
{
    auto* button = qobject_cast<QAbstractButton*>(FindHere(shell, number));
    if (!button)
        return;
    const QIcon icon = ButtonIcon(PictureFolder(*shell.bundle) + u'/' + QLatin1StringView(file));
    button->setIcon(icon);
    SetControlVisible(button, !icon.isNull());
}

void OpenFirst(PDEShellContext& shell)
{
    shell.opened = true;
    TakeShellPane(shell);
    FillPanelChoice(shell);
    SetButtonPicture(shell, kPreviousButton, "ButtonGraphic_MacUp.png");
    SetButtonPicture(shell, kNextButton, "ButtonGraphic_MacDown.png");
}

} // namespace

OSStatus Initialize(PDEShellContext& shell, const SInt32* flags, void* reference, QWidget& parentPane,
                    PrintSession& session)
{
    ppd_file_t* ppd = PPDGetCurrent();
    if (!IsOurPrinter(ppd)) {
        std::fputs("Initialize()::GetTicketFromSession() failed.\n",
                   stderr); // this text, although no ticket is asked for
        return kInvalidContext;
    }
    KDPInitialize();
    LoadInstallableOptions(ppd, InstalledFeatures);

    shell.parentPane = &parentPane;
    shell.session = &session;
    TakeDialogButtons(shell);
    RegisterMyHelpBook(shell);
    InstallDialogHandlers(shell);

    const std::unique_ptr<QWidget> window = CreateShellWindow(*shell.bundle);
    if (!window)
        return kInvalidContext;
    const QWidget* area = FindControl(window.get(), {kSignature, kPanelArea});
    InitializePanels(shell, flags, reference, area ? area->geometry() : parentPane.rect());
    return Sync(shell, session, SyncDirection::TicketsToControls);
}

OSStatus Open(PDEShellContext& shell)
{
    if (!shell.parentPane)
        return kInvalidContext; // never initialized
    shell.commandHandler = InstallEventHandler(*shell.parentPane->window(), [&shell](const CommandEvent& command) {
        return pdeShellEventHandler(shell, command);
    });
    const bool first = !shell.opened;
    if (first)
        OpenFirst(shell);
    for (PanelRecord& panel : shell.panels) {
        if (first)
            EmbedCentred(panel.userPane, FindHere(shell, kPanelArea));
        panel.interface.Open(panel.context);
    }

    if (GetShownPanel().gCurrentPanel == 0)
        GetShownPanel().gCurrentPanel = 1;
    selectPanel(GetShownPanel().gCurrentPanel, shell);
    if (PopupButton* choice = FindPopupButton(shell.parentPane, {kSignature, kPanelChoice}))
        choice->setValue(GetShownPanel().gCurrentPanel);
    return noErr;
}

OSStatus Close(PDEShellContext& shell)
{
    for (PanelRecord& panel : shell.panels)
        panel.interface.Close(panel.context);
    shell.commandHandler.reset();
    return noErr;
}

OSStatus RegisterMyHelpBook(const PDEShellContext& shell)
{
    // Help pages are found through the bundle itself when they are opened, so its place is all there is to know.
    return shell.bundle && QDir(shell.bundle->resourcesPath).exists() ? noErr : kFileNotFound;
}

} // namespace kesta::shell
