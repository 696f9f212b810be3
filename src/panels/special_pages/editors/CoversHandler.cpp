#include "panels/special_pages/editors/CoversHandler.h"

#include "panels/special_pages/editors/EditorControls.h"
#include "pde/forms/DialogCommands.h"
#include "pde/menus/LocalizationUtilities.h"
#include "pde/menus/MenuUtilities.h"
#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"
#include "printer/InstallableOptions.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/windows/InterfaceFile.h"

namespace kesta {
namespace covers {
namespace {

constexpr QLatin1StringView kHelpPage("Special_Pages/Add_Covers/m_add_covers_page.htm");

// One of the two columns.
struct Column {
    SInt32 offset;
    CoverSlot Covers::*cover;
    PPDKeyword trays;
};
constexpr Column kFrontColumn{0, &Covers::front, "KSFrontCoverSheet"};
constexpr Column kBackColumn{kBack, &Covers::back, "KSBackCoverSheet"};

struct _CoversEventHandlerData {
    const Bundle& bundle;
    QWidget& window;
    Covers covers; // the working copies
    SettingMap sidesMap;
    _StockMenuCommandEventHandlerData frontPaper = {}, backPaper = {};

    QWidget* control(SInt32 number) const { return FindControl(&window, {kSignature, number}); }
    PopupButton* popup(SInt32 number) const { return FindPopupButton(&window, {kSignature, number}); }
    PictureView* picture(SInt32 number) const { return FindControlAs<PictureView>(&window, {kSignature, number}); }
    SInt32 option() const { return GetPopupButtonTicketValue(popup(kOptionPopup)); }
    SInt32 tray(const Column& column) const { return GetPopupButtonTicketValue(popup(kTrayPopup + column.offset)); }
    _StockMenuCommandEventHandlerData& paper(const Column& column) { return column.offset ? backPaper : frontPaper; }
};

void ShowSides(const _CoversEventHandlerData& editor, const Column& column, const Cover* cover)
{
    const SInt32 sides = cover ? cover->sidesImaged() : kCoverBlank;
    const SInt32 shown = OfferedSides(editor.sidesMap, sides).value_or(sides);
    PopupButton* popup = editor.popup(kSidesPopup + column.offset);
    editors::ShowTicketValue(popup, shown, CoverSidesText(editor.bundle, editor.sidesMap, sides));
    if (popup && !cover)
        popup->setValue(1);
    if (PictureView* picture = editor.picture(kSidesPicture + column.offset))
        picture->setPicture(CoverSidesPicture(cover));
}

// A tray of the paper menu that the cover's own menu lacks; of some printers it has none at all.
QString ForeignTrayText(const Bundle& bundle, SInt32 tray)
{
    if (tray == kAutomaticTray)
        return LocalizedString(bundle, "Automatic Tray");
    return tray == kStockSourcePostPrintInserter ? StockInserterText(bundle)
                                                 : LocalizedFormat(bundle, "Unknown Setting", {QString::number(tray)});
}

void ShowTray(const _CoversEventHandlerData& editor, const Column& column, const Cover* cover)
{
    const SInt32 tray = cover ? TrayOf(*cover) : kAutomaticTray;
    editors::ShowTicketValue(editor.popup(kTrayPopup + column.offset), tray, ForeignTrayText(editor.bundle, tray));
    SetLocalizedStaticText(editor.bundle, tray == kAutomaticTray ? "Any Tray Hint" : "Named Tray Hint",
                           editor.control(kTrayHint + column.offset));
}

void ShowColumn(_CoversEventHandlerData& editor, const Column& column)
{
    Cover* cover = (editor.covers.*column.cover).get();
    const bool isFollowing = column.offset == kBack && editor.option() == kSameCovers;
    SetControlEnabled(editor.control(kColumn + column.offset), cover && !isFollowing);
    ShowSides(editor, column, cover);
    ShowTray(editor, column, cover);

    _StockMenuCommandEventHandlerData& paper = editor.paper(column);
    paper.stock = cover ? &cover->stock() : nullptr;
    const bool canChooseSize = cover && CanChooseSize(*cover);
    EnableStockMenuCommand(paper, kStockSizeCommand, canChooseSize);
    EnableStockMenuCommand(paper, kStockSourceCommand, canChooseSize);
    ShowStock(paper);
}

void ShowCovers(_CoversEventHandlerData& editor)
{
    const SInt32 option = editor.option();
    if (PictureView* picture = editor.picture(kOptionPicture))
        picture->setPicture(CoverOptionPicture(option));
    ShowColumn(editor, kFrontColumn);
    ShowColumn(editor, kBackColumn);
}

// Before covers go: the icons may be drawn any time. ShowCovers gives the papers what there is then.
void LetGoOfPapers(_CoversEventHandlerData& editor)
{
    editor.frontPaper.stock = editor.backPaper.stock = nullptr;
}

void ChooseOption(_CoversEventHandlerData& editor, SInt32 option)
{
    LetGoOfPapers(editor);
    SetPopupButtonToTicketValue(editor.popup(kOptionPopup), option);
    ApplyCoverOption(editor.covers, option, editor.tray(kFrontColumn), editor.tray(kBackColumn));
    ShowCovers(editor);
}

void DefaultCovers(_CoversEventHandlerData& editor)
{
    ChooseOption(editor, kNoCovers);
}

void Follow(_CoversEventHandlerData& editor)
{
    LetGoOfPapers(editor);
    FollowFront(editor.covers, editor.option());
    ShowCovers(editor);
}

EventResult HandleHitIn(_CoversEventHandlerData& editor, const Column& column, const HitEvent& hit)
{
    Cover* cover = (editor.covers.*column.cover).get();
    const SInt32 number = hit.control.number - column.offset;
    if (!cover || (number != kSidesPopup && number != kTrayPopup))
        return EventResult::NotHandled;
    if (number == kSidesPopup)
        SetSidesImaged(*cover, hit.ticketValue);
    else
        SetTray(*cover, hit.ticketValue);
    Follow(editor);
    return EventResult::NotHandled;
}

EventResult HandleHit(_CoversEventHandlerData& editor, const HitEvent& hit)
{
    if (hit.control.number == kOptionPopup) {
        ChooseOption(editor, hit.ticketValue);
        return EventResult::NotHandled;
    }
    return HandleHitIn(editor, hit.control.number < kBack ? kFrontColumn : kBackColumn, hit);
}

// The paper's own commands have changed the stock by now.
EventResult HandleCommand(_CoversEventHandlerData& editor, const CommandEvent& chosen)
{
    if (chosen.command == kCommandDefaults)
        DefaultCovers(editor);
    else if (chosen.control.number % kBack == kPaperButton)
        Follow(editor);
    return EventResult::NotHandled;
}

void InitializeColumn(_CoversEventHandlerData& editor, const Column& column)
{
    PopulatePopupButtonFromMap(editor.bundle, editor.popup(kSidesPopup + column.offset), editor.sidesMap,
                               JobContext::Cover);
    PPDPopulatePopupWithChoices(editor.popup(kTrayPopup + column.offset), PPDGetCurrent(), column.trays,
                                Conflicting::Keep);
    _StockMenuCommandEventHandlerData& paper = editor.paper(column);
    paper.bundle = &editor.bundle;
    paper.context = JobContext::Cover;
    paper.summaryView = editor.control(kPaperSummary + column.offset);
    paper.iconView = editor.picture(kPaperPicture + column.offset);
    InitializeStockMenuButton(FindControlAs<MenuButton>(&editor.window, {kSignature, kPaperButton + column.offset}),
                              paper);
}

void InitializeCovers(_CoversEventHandlerData& editor, const Stock* jobStock, bool isBookletLayoutOn)
{
    const bool hasCovers = editor.covers.front || editor.covers.back;
    SetLocalizedWindowTitle(editor.bundle, hasCovers ? "Covers Dialog Title Edit" : "Covers Dialog Title Add",
                            &editor.window);
    PopupButton* options = editor.popup(kOptionPopup);
    PopulatePopupButtonFromMap(editor.bundle, options, _CoverOptionMap, JobContext::Cover);
    if (options)
        options->changeItems([=](Menu& menu) {
            for (MenuItem& item : menu.items)
                item.enabled = IsCoverOptionOffered(item.value, isBookletLayoutOn);
        });
    SetPopupButtonToTicketValue(options, CoverOptionOf(editor.covers));
    InitializeColumn(editor, kFrontColumn);
    InitializeColumn(editor, kBackColumn);
    editors::ShowJobStock(editor.bundle, editor.window, kSignature, jobStock);
    ShowCovers(editor);
    if (options)
        options->setFocus();
}

void FinalizeCovers(_CoversEventHandlerData& editor)
{
    FinalizeStockMenuButton(editor.frontPaper);
    FinalizeStockMenuButton(editor.backPaper);
}

} // namespace
} // namespace covers

OSStatus RunModalCoversDialog(const Bundle& bundle, DialogMode mode, const Stock* jobStock, CoverSlot& front,
                              CoverSlot& back, const EditorCalls& calls, ModalResult& result, Ticket* settings)
{
    using namespace covers;
    if (mode == DialogMode::Edit && !front && !back)
        return kMissingArgument;
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "SpecialPages", "Covers");
    if (!window)
        return kInterfaceFileUnreadable;
    _CoversEventHandlerData editor{
        .bundle = bundle, .window = *window, .covers = CloneOf(front, back), .sidesMap = CoverSidesMap(settings)};
    InitializeCovers(editor, jobStock, settings && IsBookletLayoutOn(*settings));
    const EventHandler handler = InstallEventHandler(
        *window, [&](const HitEvent& hit) { return HandleHit(editor, hit); },
        [&](const CommandEvent& chosen) { return HandleCommand(editor, chosen); });
    result = RunModalDialog(bundle, *window, kHelpPage);
    FinalizeCovers(editor);
    if (result != ModalResult::OK)
        return noErr;
    calls.rebuildList();
    calls.saveUndoState();
    if (settings)
        WriteEditedCovers(*settings, editor.covers);
    KeepCovers(std::move(editor.covers), front, back);
    return noErr;
}

} // namespace kesta
