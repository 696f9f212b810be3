#include "panels/special_pages/SpecialPagesHandler.h"

#include "panels/special_pages/SpecialPagesView.h"
#include "panels/special_pages/editors/CoversHandler.h"
#include "panels/special_pages/editors/ExceptionsHandler.h"
#include "panels/special_pages/editors/InsertsHandler.h"
#include "pde/interface/TicketKeys.h"
#include "platform/plugins/Bundle.h"
#include "platform/system/Notices.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/windows/ModalLoop.h"

#include <QTimer>

namespace kesta::special_pages {
namespace {

constexpr int kYes = 1; // the position of the alternate button; No is the default one

bool CanJobCarry(const _SpecialPagesContext& panel, const SpecialPageList& changed)
{
    const Ticket* settings = SettingsOf(panel);
    if (!settings)
        return true;
    const bool areInserts = dynamic_cast<const InsertList*>(&changed);
    const SpecialPageList& other = areInserts ? static_cast<const SpecialPageList&>(panel.pages.exceptions)
                                              : static_cast<const SpecialPageList&>(panel.pages.inserts);
    Dictionary values = settings->values();
    const auto put = [&](const SpecialPageList& list, bool inserts) {
        std::optional<Array> pages = list.asTicket();
        values.set(inserts ? key::SpecialPagesInsertList : key::SpecialPagesExceptionList,
                   pages ? std::move(*pages) : Array());
    };
    put(changed, areInserts);
    put(other, !areInserts);
    return PMSessionCanCarry(*panel.session, values);
}

EditorCalls CallsOf(_SpecialPagesContext& panel)
{
    return {.saveUndoState = [&panel] { panel.undo.save(panel.pages); },
            .rebuildList = [&panel] { UpdateSpecialPagesSummary(panel); },
            .canCarry = [&panel](const SpecialPageList& changed) { return CanJobCarry(panel, changed); }};
}

const Stock* JobStock(const _SpecialPagesContext& panel)
{
    return panel.jobStock ? &*panel.jobStock : nullptr;
}

ModalResult RunCovers(_SpecialPagesContext& panel, DialogMode mode)
{
    ModalResult result = ModalResult::Cancel;
    RunModalCoversDialog(*panel.bundle, mode, JobStock(panel), panel.pages.frontCover, panel.pages.backCover,
                         CallsOf(panel), result, SettingsOf(panel));
    return result;
}

ModalResult RunInserts(_SpecialPagesContext& panel, const Insert* edited)
{
    ModalResult result = ModalResult::Cancel;
    RunModalInsertsDialog(*panel.bundle, edited ? DialogMode::Edit : DialogMode::Add, JobStock(panel),
                          panel.pages.inserts, edited, CallsOf(panel), result);
    return result;
}

ModalResult RunExceptions(_SpecialPagesContext& panel, const ExceptionPage* edited)
{
    ModalResult result = ModalResult::Cancel;
    RunModalExceptionsDialog(*panel.bundle, edited ? DialogMode::Edit : DialogMode::Add, JobStock(panel),
                             panel.pages.exceptions, edited, CallsOf(panel), result);
    return result;
}

ModalResult EditPage(_SpecialPagesContext& panel, const SpecialPage& page)
{
    if (const auto* insert = dynamic_cast<const Insert*>(&page))
        return RunInserts(panel, insert);
    if (const auto* exception = dynamic_cast<const ExceptionPage*>(&page))
        return RunExceptions(panel, exception);
    return RunCovers(panel, DialogMode::Edit);
}

// Shows what an editor has made or changed, selected.
template <class RunEditor> void ShowEdited(_SpecialPagesContext& panel, bool areCovers, const RunEditor& run)
{
    const ChosenPages before(panel.rows.begin(), panel.rows.end());
    if (run() != ModalResult::OK)
        return;
    UpdateSpecialPagesSummary(panel);
    ChosenPages edited;
    for (const SpecialPage* page : panel.rows) {
        if (areCovers ? dynamic_cast<const Cover*>(page) != nullptr : !before.contains(page))
            edited.insert(page);
    }
    SelectPages(panel, edited);
    UpdateSpecialPagesCommandButtons(panel);
}

void EditSelected(_SpecialPagesContext& panel)
{
    const SpecialPages selected = SelectedPages(panel);
    if (selected.size() != 1)
        return;
    const SpecialPage& page = *selected.front();
    ShowEdited(panel, dynamic_cast<const Cover*>(&page), [&] { return EditPage(panel, page); });
}

// On several pages a sheet a button that was still enabled learns it here.
template <class RunEditor> void AddPages(_SpecialPagesContext& panel, Control button, const RunEditor& run)
{
    const Ticket* settings = SettingsOf(panel);
    if (settings && IsNUpOn(*settings))
        SetControlEnabled(FindControl(panel.view, {kSignature, button}), false);
    else
        ShowEdited(panel, false, run);
}

bool ConfirmDeletion(const Bundle& bundle, const char* messageKey)
{
    return GetNotices().ask({.title = LocalizedString(bundle, "Delete Special Pages Title"),
                             .message = LocalizedString(bundle, messageKey),
                             .buttons = {LocalizedString(bundle, "No Command"), LocalizedString(bundle, "Yes Command")},
                             .cancelButton = 0}) == kYes;
}

EventResult PressButton(_SpecialPagesContext& panel, Control number)
{
    ClickControl(FindControl(panel.view, {kSignature, number}));
    return EventResult::Handled;
}

// Return edits and never prints, whatever is selected.
EventResult HandleListKey(_SpecialPagesContext& panel, const KeyEvent& key)
{
    if (key.control != ControlID{kSignature, kList})
        return EventResult::NotHandled;
    const Qt::KeyboardModifiers modifiers = key.modifiers & ~Qt::KeypadModifier;
    if (modifiers == Qt::ControlModifier && key.key == Qt::Key_Z)
        return PressButton(panel, kUndoButton);
    if (modifiers != Qt::NoModifier)
        return EventResult::NotHandled;
    switch (key.key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return PressButton(panel, kEditButton);
    case Qt::Key_Delete:
        return PressButton(panel, kDeleteButton);
    default:
        return EventResult::NotHandled;
    }
}

// The dialog's own fields decide, too, what may be added: looked at once they are in the ticket.
EventResult FollowJob(_SpecialPagesContext& panel)
{
    QTimer::singleShot(0, panel.view, [&panel] {
        if (_specialPagesContext == &panel) // the dialog may have been closed by then
            UpdateSpecialPagesUI(panel);
    });
    return EventResult::NotHandled;
}

} // namespace

void InstallSpecialPagesEventHandler(_SpecialPagesContext& panel)
{
    panel.handler = InstallEventHandler(
        *panel.pane, [&panel](const HitEvent& hit) { return SpecialPagesEventHandler(panel, hit); },
        [&panel](const ItemChosenEvent& chosen) {
            return chosen.control.number == kList ? PressButton(panel, kEditButton) : EventResult::NotHandled;
        },
        [&panel](const KeyEvent& key) { return HandleListKey(panel, key); });
    panel.windowHandler =
        InstallEventHandler(*panel.pane->window(), [&panel](const HitEvent&) { return FollowJob(panel); });
}

EventResult SpecialPagesEventHandler(_SpecialPagesContext& panel, const HitEvent& hit)
{
    switch (hit.control.number) {
    case kList:
        UpdateSpecialPagesCommandButtons(panel);
        break;
    case kAddCoversButton:
        ShowEdited(panel, true, [&] { return RunCovers(panel, DialogMode::Add); });
        break;
    case kAddInsertsButton:
        AddPages(panel, kAddInsertsButton, [&] { return RunInserts(panel, nullptr); });
        break;
    case kAddExceptionsButton:
        AddPages(panel, kAddExceptionsButton, [&] { return RunExceptions(panel, nullptr); });
        break;
    case kEditButton:
        EditSelected(panel);
        break;
    case kDeleteButton:
        DeleteSelectedSpecialPages(panel);
        break;
    case kDeleteAllButton:
        DeleteAllSpecialPages(panel);
        break;
    case kUndoButton:
        PerformUndo(panel);
        break;
    case kMoveUpButton:
        panel.undo.save(panel.pages);
        MoveUp(panel.pages, SelectedPages(panel));
        UpdateSpecialPagesSummary(panel);
        break;
    case kMoveDownButton:
        panel.undo.save(panel.pages);
        MoveDown(panel.pages, SelectedPages(panel));
        UpdateSpecialPagesSummary(panel);
        break;
    default:
        return EventResult::NotHandled;
    }
    UpdateSpecialPagesUI(panel);
    return EventResult::Handled;
}

// The undo state is saved also when the answer is no.
void DeleteSelectedSpecialPages(_SpecialPagesContext& panel)
{
    panel.undo.save(panel.pages);
    if (ConfirmDeletion(*panel.bundle, "Delete Selected Special Pages"))
        Remove(panel.pages, SelectedPages(panel));
    UpdateSpecialPagesSummary(panel);
}

void DeleteAllSpecialPages(_SpecialPagesContext& panel)
{
    panel.undo.save(panel.pages);
    if (ConfirmDeletion(*panel.bundle, "Delete All Special Pages"))
        RemoveAll(panel.pages);
    UpdateSpecialPagesSummary(panel);
}

void PerformUndo(_SpecialPagesContext& panel)
{
    panel.undo.perform(panel.pages);
    UpdateSpecialPagesSummary(panel);
}

std::optional<SInt32> StepsOf(const _SpecialPagesContext& panel, int row, int before)
{
    const auto index = static_cast<std::size_t>(row);
    return index < panel.rows.size() ? StepsTo(panel.pages, panel.rows, *panel.rows[index], before) : std::nullopt;
}

void MoveRow(_SpecialPagesContext& panel, int row, int before)
{
    const std::optional<SInt32> steps = StepsOf(panel, row, before);
    if (!steps)
        return;
    panel.undo.save(panel.pages);
    Move(panel.pages, *panel.rows[static_cast<std::size_t>(row)], *steps);
    UpdateSpecialPagesSummary(panel);
}

} // namespace kesta::special_pages
