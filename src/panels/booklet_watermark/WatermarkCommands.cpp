#include "panels/booklet_watermark/WatermarkCommands.h"

#include "panels/booklet_watermark/BookletWatermarkView.h"
#include "panels/booklet_watermark/WatermarkList.h"
#include "panels/booklet_watermark/watermark/DrawingLibrary.h"
#include "panels/booklet_watermark/watermark/WatermarkEditor.h"
#include "panels/booklet_watermark/watermark/WatermarkNoteText.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"
#include "panels/special_pages/paper/CustomSizeRules.h"
#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"
#include "platform/system/Notices.h"

namespace kesta::booklet_watermark {
namespace {

constexpr int kYes = 0; // the position of the default button

void Say(const Bundle& bundle, const char* title, const char* message, const QString& name)
{
    GetNotices().show({.title = LocalizedString(bundle, title), .message = LocalizedFormat(bundle, message, {name})});
}

bool Confirm(const Bundle& bundle, const char* title, const char* message, const QString& argument)
{
    return GetNotices().ask(
               {.title = LocalizedString(bundle, title),
                .message = LocalizedFormat(bundle, message, {argument}),
                .buttons = {LocalizedString(bundle, "Yes Command"), LocalizedString(bundle, "No Command")}}) == kYes;
}

void DropUnused(const _WatermarkData& removed)
{
    GetDrawingLibrary().DropFont(kWatermarkFile, removed);
}

void Choose(_BookletWatermarkContext& panel, const QString& name)
{
    panel.options.watermark.item = ItemOfWatermark(listOfWatermarks(), name);
    panel.options.watermark.missing.clear();
}

void SayGone(_BookletWatermarkContext& panel, const QString& name)
{
    listOfWatermarks().removeAll(name);
    Choose(panel, {});
    Say(*panel.bundle, "Watermark Gone Header", "Watermark Gone Message", name);
}

// OK in the editor: whether the record may be saved under its name. Another watermark of that name is only replaced
// when the user says so.
bool MaySave(const Bundle& bundle, const _WatermarkData& record, const QString& oldName)
{
    const QString& name = NameOf(record);
    const NameProblem problem = GetDrawingLibrary().CheckWatermarkName(kWatermarkFile, name);
    if (problem != NameProblem::None) {
        GetNotices().show({.title = LocalizedString(bundle, "Watermark Name Header"),
                           .message = NameSentence(bundle, name, problem)});
        return false;
    }
    _WatermarkData other;
    const bool isTaken = name != oldName && loadWatermarkData(kWatermarkFile, name, other);
    return !isTaken || Confirm(bundle, "Replace Watermark Header", "Replace Watermark Message", name);
}

void Edit(_BookletWatermarkContext& panel, _WatermarkData& record, const QString& oldName)
{
    const Bundle& bundle = *panel.bundle;
    record.pageWidth = panel.page.width();
    record.pageHeight = panel.page.height();
    ModalResult result = ModalResult::Cancel;
    RunModalWatermarkEditorDialog(bundle, record, LocalizedString(bundle, "Watermark Editor"), result,
                                  [&](const _WatermarkData& edited) { return MaySave(bundle, edited, oldName); });
    if (result != ModalResult::OK || NameOf(record).isEmpty())
        return;
    RememberUnits(record.units);
    if (SaveWatermark(record, oldName, DropUnused))
        Choose(panel, NameOf(record));
    else
        Say(bundle, "Watermark Not Saved Header", "Watermark Not Saved Message", NameOf(record));
}

void New(_BookletWatermarkContext& panel)
{
    _WatermarkData record;
    record.units = UsualUnits(DefaultSizeUnits() == SizeUnits::Inches ? 0 : 1);
    Edit(panel, record, {});
}

void EditSelected(_BookletWatermarkContext& panel, const QString& name)
{
    _WatermarkData record;
    if (loadWatermarkData(kWatermarkFile, name, record))
        Edit(panel, record, name);
    else // listed, but without a record, as where the whole store is gone
        SayGone(panel, name);
}

void DeleteSelected(_BookletWatermarkContext& panel, const QString& name)
{
    const Bundle& bundle = *panel.bundle;
    if (!Confirm(bundle, "Delete Watermark Header", "Delete Watermark Message", name))
        return;
    if (DeleteWatermark(name, DropUnused))
        Choose(panel, {});
    else
        Say(bundle, "Watermark Not Deleted Header", "Watermark Not Saved Message", name);
}

void RunOnWatermark(_BookletWatermarkContext& panel, const CommandEvent& chosen, const QString& name)
{
    if (name.isEmpty())
        return;
    if (!listOfWatermarks().contains(name))
        return SayGone(panel, name);
    Choose(panel, name);
    if (chosen.command == kEditCommand)
        EditSelected(panel, name);
    else if (chosen.command == kDeleteCommand)
        DeleteSelected(panel, name);
    else if (chosen.command == kLayerOrPagesCommand)
        ChooseLayerOrPages(panel.options.watermark, chosen.ticketValue);
}

} // namespace

void RunWatermarkCommand(_BookletWatermarkContext& panel, const CommandEvent& chosen)
{
    const QStringList before = listOfWatermarks();
    const QString selected = WatermarkOfItem(before, panel.options.watermark.item);
    ReloadWatermarks();
    switch (chosen.command) {
    case kNoWatermarkCommand:
        Choose(panel, {});
        break;
    case kSavedWatermarkCommand:
        RunOnWatermark(panel, chosen, before.value(chosen.ticketValue));
        break;
    case kEditCommand:
    case kDeleteCommand:
    case kLayerOrPagesCommand:
        RunOnWatermark(panel, chosen, selected);
        break;
    case kNewCommand:
        Choose(panel, selected); // which may stand at another place now
        New(panel);
        break;
    }
    if (listOfWatermarks() != before)
        FillWatermarkMenu(panel);
}

void OfferOwnWatermarks(_BookletWatermarkContext& panel)
{
    if (AreOwnWatermarksOffered())
        return;
    const QStringList own = OwnWatermarks();
    if (own.isEmpty())
        return;
    RememberOwnWatermarksOffered();
    if (!Confirm(*panel.bundle, "Own Watermarks Header", "Own Watermarks Message", own.join(QStringLiteral(", "))))
        return;
    const QString selected = WatermarkOfItem(listOfWatermarks(), panel.options.watermark.item);
    CopyOwnWatermarks(own);
    Choose(panel, selected);
    FillWatermarkMenu(panel);
    ShowWatermark(panel);
}

} // namespace kesta::booklet_watermark
