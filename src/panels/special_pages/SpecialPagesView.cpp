#include "panels/special_pages/SpecialPagesView.h"

#include "panels/special_pages/SpecialPagesHandler.h"
#include "panels/special_pages/SpecialPagesSummary.h"
#include "pde/interface/SummaryPlaces.h"
#include "platform/plugins/Bundle.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/ListView.h"
#include "toolkit/windows/WindowSummary.h"

#include <QAbstractButton>
#include <QMenu>

namespace kesta::special_pages {
namespace {

constexpr int kAttributesWidth = 430; // points; in a window of usual width the column takes 450
constexpr Control kContextCommands[] = {kEditButton, kDeleteButton, kDeleteAllButton,
                                        kUndoButton, kMoveUpButton, kMoveDownButton};

QWidget* Find(const _SpecialPagesContext& panel, Control number)
{
    return FindControl(panel.view, {kSignature, number});
}

ListRow MakeRow(const _SpecialPagesContext& panel, int row)
{
    const SpecialPage& page = *panel.rows[static_cast<std::size_t>(row)];
    const PageTexts texts(*panel.bundle, panel.pages, SettingsOf(panel));
    ListRow shown{.cells = std::vector<QString>(kColumnCount),
                  .spoken = texts.spoken(page, row + 1, static_cast<int>(panel.rows.size()))};
    for (int column = 0; column < kColumnCount; ++column)
        texts.cell(page, column, shown.cells[static_cast<std::size_t>(column)]);
    return shown;
}

// What can be done now: the buttons below the list, as a menu.
void ShowContextMenu(const _SpecialPagesContext& panel, ListView& list, const QPoint& position)
{
    auto* menu = new QMenu(&list);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Control number : kContextCommands) {
        auto* button = qobject_cast<QAbstractButton*>(Find(panel, number));
        if (button && button->isEnabled())
            menu->addAction(button->icon(), button->accessibleName(), button, &QAbstractButton::click);
    }
    menu->isEmpty() ? menu->deleteLater() : menu->popup(list.viewport()->mapToGlobal(position));
}

const char* HintKey(const _SpecialPagesContext& panel, const Ticket& settings)
{
    const bool hasPages = panel.pages.inserts.count() > 0 || panel.pages.exceptions.count() > 0;
    if (IsBookletLayoutOn(settings))
        return hasPages ? "Special Pages In Booklet" : "No Special Pages In Booklet";
    return IsNUpOn(settings) ? "No Special Pages With N-Up" : "";
}

// A command that can't go on leaves the keyboard with the list.
void EnableCommand(const _SpecialPagesContext& panel, Control number, bool enabled)
{
    QWidget* button = Find(panel, number);
    ListView* list = ListOf(panel);
    if (button && list && !enabled && button->window()->focusWidget() == button)
        list->setFocus();
    SetControlEnabled(button, enabled);
}

} // namespace

ListView* ListOf(const _SpecialPagesContext& panel)
{
    return qobject_cast<ListView*>(Find(panel, kList));
}

void ConfigureSpecialPagesListAndInstallCallbacks(_SpecialPagesContext& panel)
{
    ListView* list = ListOf(panel);
    if (!list)
        return;
    list->setColumns({{.title = LocalizedString(*panel.bundle, "Page(s)")},
                      {.title = LocalizedString(*panel.bundle, "Type Title")},
                      {.title = LocalizedString(*panel.bundle, "Attributes Title"),
                       .minimumWidth = kAttributesWidth,
                       .stretches = true}});
    list->setRowDragging({.allows = [&panel](int row, int before) { return StepsOf(panel, row, before).has_value(); },
                          .move = [&panel](int row, int before) { MoveRow(panel, row, before); }});
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(list, &QWidget::customContextMenuRequested, list,
                     [&panel, list](const QPoint& position) { ShowContextMenu(panel, *list, position); });
}

SpecialPages SelectedPages(const _SpecialPagesContext& panel)
{
    SpecialPages selected;
    const ListView* list = ListOf(panel);
    for (const int row : list ? list->selectedRows() : std::vector<int>()) {
        if (static_cast<std::size_t>(row) < panel.rows.size())
            selected.push_back(panel.rows[static_cast<std::size_t>(row)]);
    }
    return selected;
}

void SelectPages(const _SpecialPagesContext& panel, const ChosenPages& pages)
{
    std::vector<int> rows;
    for (std::size_t row = 0; row < panel.rows.size(); ++row) {
        if (pages.contains(panel.rows[row]))
            rows.push_back(static_cast<int>(row));
    }
    if (ListView* list = ListOf(panel); list && !rows.empty())
        list->setSelectedRows(rows);
}

void ForgetRows(_SpecialPagesContext& panel)
{
    panel.rows.clear();
    if (ListView* list = ListOf(panel))
        list->setRows(0, {});
}

void UpdateSpecialPagesSummary(_SpecialPagesContext& panel)
{
    const SpecialPages selected = SelectedPages(panel);
    panel.rows = RowsOf(panel.pages);
    if (ListView* list = ListOf(panel)) {
        list->setRows(static_cast<int>(panel.rows.size()), [&panel](int row) { return MakeRow(panel, row); });
        SetSummaryPhrases(*list, SummaryPlace::OtherPages,
                          PageTexts(*panel.bundle, panel.pages, SettingsOf(panel)).phrases());
    }
    SelectPages(panel, {selected.begin(), selected.end()});
    UpdateSpecialPagesCommandButtons(panel);
}

void UpdateSpecialPagesCommandButtons(const _SpecialPagesContext& panel)
{
    const CommandStates states = StatesOf(panel.pages, SelectedPages(panel), panel.undo.canUndo());
    EnableCommand(panel, kEditButton, states.edit);
    EnableCommand(panel, kDeleteButton, states.remove);
    EnableCommand(panel, kDeleteAllButton, states.removeAll);
    EnableCommand(panel, kUndoButton, states.undo);
    EnableCommand(panel, kMoveUpButton, states.moveUp);
    EnableCommand(panel, kMoveDownButton, states.moveDown);
}

void UpdateSpecialPagesUI(const _SpecialPagesContext& panel)
{
    const Ticket* settings = SettingsOf(panel);
    if (!settings)
        return;
    const bool canAdd = CanAddPages(*settings);
    SetControlEnabled(Find(panel, kAddInsertsButton), canAdd);
    SetControlEnabled(Find(panel, kAddExceptionsButton), canAdd);
    const QString key = QString::fromLatin1(HintKey(panel, *settings));
    SetControlText(Find(panel, kHint), key.isEmpty() ? QString() : LocalizedString(*panel.bundle, key));
}

} // namespace kesta::special_pages
