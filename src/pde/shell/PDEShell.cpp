#include "pde/shell/PDEShell.h"

#include "pde/menus/MenuUtilities.h"
#include "pde/shell/PanelLoading.h"
#include "platform/plugins/Bundle.h"
#include "toolkit/windows/InterfaceFile.h"

namespace kesta::shell {
namespace {

// Nothing when the panel can't be found or does not begin.
std::optional<PanelRecord> LoadPanel(const Bundle& plugIn, const std::string& functionName, SInt32 index)
{
    const PanelInterfaceHolder* holder = nullptr;
    const PanelInterfaceFunction function = FindPanelFunction(plugIn, functionName).function;
    if (!function || function(&holder) != noErr || !holder || !holder->table)
        return std::nullopt;
    KestaPrologue prologue{};
    if (holder->table->Prologue(&prologue) != noErr)
        return std::nullopt;
    return PanelRecord{.interface = *holder->table,
                       .context = prologue.context,
                       .title = QString::fromUtf8(prologue.title),
                       .kind = QString::fromUtf8(prologue.kind),
                       .userPane = {},
                       .index = index};
}

void SyncPanels(PDEShellContext& shell, bool toControls, auto takesPart)
{
    for (PanelRecord& panel : shell.panels) {
        if (takesPart(panel))
            panel.interface.Sync(panel.context, shell.session, toControls);
    }
}

} // namespace

ShownPanel& GetShownPanel()
{
    static ShownPanel shown;
    return shown;
}

void LoadPanels(PDEShellContext& shell)
{
    const std::vector<std::string>& names = GetPanelFunctionNames();
    shell.panels.reserve(names.size());
    while (shell.panels.size() < names.size()) {
        const std::size_t position = shell.panels.size();
        if (std::optional<PanelRecord> panel =
                LoadPanel(*shell.bundle, names[position], static_cast<SInt32>(position) + 1))
            shell.panels.push_back(std::move(*panel));
    }
}

void selectPanel(SInt32 index, PDEShellContext& shell)
{
    ShownPanel& shown = GetShownPanel();
    QWidget* frame = FindControl(shell.parentPane, {kSignature, kPanelFrame});
    const SInt32 left = shown._lastTabIndex;

    SyncPanels(shell, false, [left](const PanelRecord& panel) { return panel.index == left; });
    SetControlVisible(frame, false);
    SyncPanels(shell, true,
               [left](const PanelRecord& panel) { return panel.index != left && panel.index != kTakesNoPart; });
    for (PanelRecord& panel : shell.panels) {
        SetControlVisible(panel.userPane, panel.index == index);
        SetControlEnabled(panel.userPane, panel.index == index);
    }
    shown.gCurrentPanel = index;
    shown._lastTabIndex = index;
    SetControlVisible(frame, true);
}

void selectItemOfTabControl(QWidget& tabControl, SInt32 position, std::span<const SInt32> ids)
{
    if (ids.empty())
        return;
    const std::size_t count = std::min<std::size_t>(ids.front(), ids.size() - 1);
    const auto pane = [&](std::size_t at) {
        return FindControl(tabControl.window(), {GetControlID(tabControl).signature, ids[at]});
    };
    const auto show = [](QWidget* control, bool shown) {
        SetControlVisible(control, shown);
        SetControlEnabled(control, shown);
    };
    const auto chosen = static_cast<std::size_t>(std::max(position, 0)); // 0: none of them
    for (std::size_t at = 1; at <= count; ++at) {
        if (at != chosen)
            show(pane(at), false);
    }
    if (chosen >= 1 && chosen <= count)
        show(pane(chosen), true);
}

} // namespace kesta::shell
