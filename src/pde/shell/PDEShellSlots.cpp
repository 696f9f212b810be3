#include "pde/shell/PDEShell.h"

#include "pde/shell/KestaPDE.h"
#include "platform/plugins/Bundle.h"
#include "printer/DeviceProfile.h"
#include "printer/InstallableOptions.h"
#include "printer/PPDUtilities.h"

// The pane's ten slots: each calls the product's hook, then answers what is missing, then the shell.
namespace kesta {
namespace shell {
namespace {

constexpr uint32_t kMaximumWidth = 540; // pixels
constexpr uint32_t kMaximumHeight = 491;

const Bundle*& PDEBundle()
{
    static const Bundle* bundle = nullptr;
    return bundle;
}

// The pane that was begun last and is not terminated yet.
PDEShellContext*& CurrentShell()
{
    static PDEShellContext* shell = nullptr;
    return shell;
}

// The print dialog may put another pane in the place. Later, since it may be an event of the pane's that ends it.
void Discard(QWidget* control)
{
    if (!control)
        return;
    control->hide();
    control->setParent(nullptr);
    control->deleteLater();
}

PDEShellContext& ShellOf(KestaContextRef context)
{
    return *static_cast<PDEShellContext*>(context);
}

// What an object that was handed out is behind its public face.
struct DialogExtension : KestaDialogExtension {
    PanelInterface slots = GetShellInterface();
    uint32_t count = 1;
};

void Retain(KestaDialogExtension* self)
{
    ++static_cast<DialogExtension*>(self)->count;
}

void Release(KestaDialogExtension** self)
{
    auto* extension = static_cast<DialogExtension*>(std::exchange(*self, nullptr));
    if (--extension->count == 0)
        delete extension;
}

OSStatus GetAPIVersion(KestaDialogExtension*, KestaAPIVersion* version)
{
    *version = {.build = {.major = 1, .minor = 0}, .base = {.major = 1, .minor = 0}};
    return noErr;
}

OSStatus Prologue(KestaPrologue* answer)
{
    return Guarded([&] {
        const OSStatus status = KestaPDEProlog();
        auto shell = std::make_unique<PDEShellContext>();
        CurrentShell() = shell.get();
        GetShownPanel().gCurrentPanel = 0;
        if (const Bundle* found = PlugInBundle()) {
            PDEBundle() = found;
            shell->bundle = found;
            shell->title = LocalizedString(*found, "PDE Shell").toUtf8();
            LoadPanels(*shell);
        }
        *answer = {.context = shell.get(),
                   .creator = kCreator,
                   .kind = kPanelKind,
                   .title = shell->title.constData(),
                   .maximumWidth = kMaximumWidth,
                   .maximumHeight = kMaximumHeight};
        static_cast<void>(shell.release()); // the caller's until Terminate
        return status;
    });
}

OSStatus InitializeSlot(KestaContextRef context, const int32_t* flags, void* reference, QWidget* pane,
                        PrintSession* session)
{
    return Guarded([&] {
        KestaPDEInitialize(session);
        if (!context || !session || !pane || !ShellOf(context).bundle)
            return kInvalidContext;
        return Initialize(ShellOf(context), flags, reference, *pane, *session);
    });
}

OSStatus SyncSlot(KestaContextRef context, PrintSession* session, bool toControls)
{
    return Guarded([&] {
        KestaPDESync();
        return context && session ? Sync(ShellOf(context), *session, SyncDirection{toControls}) : kSyncWithoutContext;
    });
}

OSStatus GetSummaryText(KestaContextRef context, const char* const** titles, const char* const** summaries)
{
    return Guarded([&] {
        OSStatus status = KestaPDEGetSummaryText();
        *titles = *summaries = nullptr;
        if (!context)
            return kInvalidContext;
        for (PanelRecord& panel : ShellOf(context).panels)
            status = panel.interface.GetSummaryText(panel.context, titles, summaries);
        return status;
    });
}

OSStatus OpenSlot(KestaContextRef context)
{
    return Guarded([&] {
        KestaPDEOpen();
        return context ? Open(ShellOf(context)) : kInvalidContext;
    });
}

OSStatus CloseSlot(KestaContextRef context)
{
    return Guarded([&] {
        KestaPDEClose();
        return context ? Close(ShellOf(context)) : kInvalidContext;
    });
}

OSStatus Terminate(KestaContextRef context, OSStatus status)
{
    return Guarded([&] {
        const OSStatus result = KestaPDETerminate();
        if (!context)
            return kInvalidContext;
        const std::unique_ptr<PDEShellContext> shell(&ShellOf(context));
        for (PanelRecord& panel : shell->panels)
            panel.interface.Terminate(panel.context, status);
        for (PanelRecord& panel : shell->panels)
            Discard(panel.userPane);
        Discard(shell->shellPane);
        if (CurrentShell() == shell.get())
            CurrentShell() = nullptr;
        PPDCloseCurrent();
        UnloadInstallableOptions();
        KDPFinalize();
        return result;
    });
}

} // namespace

PanelInterface GetShellInterface()
{
    return {.Retain = Retain,
            .Release = Release,
            .GetAPIVersion = GetAPIVersion,
            .Prologue = Prologue,
            .Initialize = InitializeSlot,
            .Sync = SyncSlot,
            .GetSummaryText = GetSummaryText,
            .Open = OpenSlot,
            .Close = CloseSlot,
            .Terminate = Terminate};
}

KestaDialogExtension* CreateDialogExtension()
{
    auto* extension = new DialogExtension;
    extension->table = &extension->slots;
    return extension;
}

} // namespace shell

const Bundle* GetPDEBundle()
{
    return shell::PDEBundle();
}

OSStatus PDESync(PrintSession*, SyncDirection direction)
{
    shell::PDEShellContext* current = shell::CurrentShell();
    return current && current->session ? shell::Sync(*current, *current->session, direction) : kSyncWithoutContext;
}

} // namespace kesta
