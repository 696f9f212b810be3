#include "panels/booklet_watermark/booklet/BookletDialog.h"

#include "panels/booklet_watermark/booklet/BookletRules.h"
#include "panels/booklet_watermark/booklet/FoldScene.h"
#include "panels/special_pages/paper/StockMenuRules.h"
#include "pde/forms/BoundControls.h"
#include "pde/forms/DialogCommands.h"
#include "pde/forms/InfoMark.h"
#include "pde/menus/LocalizationUtilities.h"
#include "pde/ticket/LocalizedText.h"
#include "pde/ticket/TicketUtilities.h"
#include "platform/plugins/Bundle.h"
#include "printer/FinishingKinds.h"
#include "printer/InstallableOptions.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/windows/InterfaceFile.h"

#include <algorithm>
#include <array>

namespace kesta::booklet {
namespace {

// What is a choice only while the layout is on.
constexpr auto kLayoutControls =
    std::to_array<Control>({kDrawOutlinesBox, kNewSizeLabel, kNewSizePopup, kGutterLabel, kGutterField, kGutterRange,
                            kCreepLabel, kCreepField, kCreepRange, kFoldScene, kFoldHint});

struct FoldRadio {
    Control radio;
    SInt32 fold;
};
constexpr auto kFoldRadios = std::to_array<FoldRadio>({
    {kFoldNoneRadio, kNotFinished},
    {kFoldRadio, kFoldBi},
    {kFoldAndStapleRadio, kFoldBiStaple},
});

// The new size has a menu of its own.
constexpr auto kBindings = std::to_array<Binding<Booklet>>({
    {kDrawOutlinesBox, kMember<&Booklet::drawOutlines>, {.on = kDrawPageBorders, .off = kNoPageBorders}},
    {kNewSizePopup, kMember<&Booklet::newPaperSize>},
    {kGutterField, kMember<&Booklet::gutter>},
    {kCreepField, kMember<&Booklet::creep>},
});

// The controls of one window; those that it lacks are null, and nothing is shown in or read from them.
struct BookletWindow {
    QWidget& window;
    BoundControls<Booklet> bound;

    QWidget* control(SInt32 number) const { return FindControl(&window, {kSignature, number}); }
    PopupButton* newSize() const { return FindPopupButton(&window, {kSignature, kNewSizePopup}); }
    SpinField* spin(SInt32 number) const { return FindControlAs<SpinField>(&window, {kSignature, number}); }
    bool isChecked(SInt32 number) const
    {
        const auto* button = FindControlAs<QAbstractButton>(&window, {kSignature, number});
        return button && button->isChecked();
    }
    void check(SInt32 number) const
    {
        if (auto* button = FindControlAs<QAbstractButton>(&window, {kSignature, number}))
            button->setChecked(true);
    }
};

void BuildSizeMenu(const BookletWindow& dialog, const Bundle& bundle)
{
    if (!dialog.newSize())
        return;
    // As for covers: their menu, too, begins with an item for no size, and offers no custom one, whose width and length
    // the booklet could not keep.
    Menu menu;
    PopulateStockSizeMenu(menu, bundle, JobContext::Cover);
    SetLocalizedMenuTitle(bundle, "Off", &menu, 1);
    dialog.newSize()->setMenu(std::move(menu));
}

void SetLimits(SpinField* field, SInt32 most, int decimals)
{
    if (field)
        field->setLimits(0, most, decimals);
}

void BuildControls(const BookletWindow& dialog, const Bundle& bundle)
{
    BuildSizeMenu(dialog, bundle);
    SetLimits(dialog.spin(kGutterField), kGreatestGutter, 0);
    SetLimits(dialog.spin(kCreepField), kGreatestCreep, 1);
    SetLocalizedStaticText(bundle, "Gutter Range Label", dialog.control(kGutterRange),
                           {QString::number(0), QString::number(kGreatestGutter)});
    SetLocalizedStaticText(bundle, "Creep Range Label", dialog.control(kCreepRange),
                           {CreateLocalizedCFStringFromNumberWithDecimals(0, 1),
                            CreateLocalizedCFStringFromNumberWithDecimals(kGreatestCreep, 1)});
}

BookletLock LockOfJob()
{
    const PrintSession* session = GetCurrentPrintSession();
    const Ticket* settings = session ? GetTicketFromSession(*session, kPMPrintSettingsTicket).ticket : nullptr;
    return settings ? BookletLockOf(*settings, PPDGetCurrent()) : BookletLock();
}

void EnableControls(const BookletWindow& dialog)
{
    for (const Control number : kLayoutControls)
        SetControlEnabled(dialog.control(number), dialog.isChecked(kLayoutOnRadio));

    for (const Control number : {kFoldLabel, kFoldNoneRadio, kFoldRadio, kFoldAndStapleRadio, kLayoutOnRadio})
        SetControlEnabled(dialog.control(number), !LockOfJob().bySpecialPages);
}

void ShowLock(const BookletWindow& dialog, const Bundle& bundle)
{
    BookletLock lock = LockOfJob();
    lock.byStaple = false; // the panel's affair: here the fold may be chosen all the same
    SetControlText(dialog.control(kLockReason), BookletLockReason(bundle, lock));
    SetControlVisible(dialog.control(kLockRow), lock.isLocked());
}

// The first checked radio decides; without any the fold stays.
SInt32 ChosenFold(const BookletWindow& dialog, SInt32 before)
{
    const auto chosen =
        std::ranges::find_if(kFoldRadios, [&](const FoldRadio& row) { return dialog.isChecked(row.radio); });
    return chosen == kFoldRadios.end() ? before : chosen->fold;
}

void SyncToUI(const BookletWindow& dialog, const Booklet& booklet)
{
    const auto fold = std::ranges::find(kFoldRadios, booklet.fold, &FoldRadio::fold);
    if (fold != kFoldRadios.end()) // a job that is folded in another way checks none, and stays so
        dialog.check(fold->radio);
    dialog.check(booklet.isOn() ? kLayoutOnRadio : kLayoutOffRadio);
    dialog.bound.show(booklet, Showing::Opened); // a size that the menu lacks stays at its first item
}

void SyncFromUI(const BookletWindow& dialog, Booklet& booklet)
{
    booklet.fold = ChosenFold(dialog, booklet.fold);
    booklet.layout = dialog.isChecked(kLayoutOnRadio) ? kBookletLayoutOn : kBookletLayoutOff;
    dialog.bound.takeAll(booklet);
}

Booklet AsShown(const BookletWindow& dialog, const Booklet& before)
{
    Booklet shown = before;
    SyncFromUI(dialog, shown);
    return shown;
}

// Sheets can be folded, and stapled in the fold, without becoming a booklet: whoever expects one reads why.
void ShowFoldHint(const BookletWindow& dialog, const Bundle& bundle, const Booklet& shown)
{
    const bool foldsOnly = !shown.isOn() && (shown.fold == kFoldBi || shown.fold == kFoldBiStaple);
    SetControlText(dialog.control(kWithoutLayoutHint),
                   foldsOnly ? LocalizedString(bundle, "Fold Without Layout Hint") : QString());
}

void ShowChoices(const BookletWindow& dialog, const Bundle& bundle, const Booklet& before)
{
    const Booklet shown = AsShown(dialog, before);
    ShowFoldHint(dialog, bundle, shown);
    if (auto* picture = FindControlAs<PictureView>(&dialog.window, {kSignature, kIllustration}))
        picture->setPicture(QString::fromLatin1(BookletIllustration(shown)));
    if (QWidget* scene = dialog.control(kFoldScene))
        scene->update();
}

EventResult DrawInDialog(const BookletWindow& dialog, const Bundle& bundle, const Booklet& before,
                         const DrawEvent& draw)
{
    if (draw.control.number == kLockMark)
        DrawInfoMark(*draw.painter, draw.bounds, bundle);
    else if (draw.control.number == kFoldScene)
        DrawFoldScene(*draw.painter, draw.bounds, AsShown(dialog, before), dialog.control(kFoldScene)->isEnabled());
    else
        return EventResult::NotHandled;
    return EventResult::Handled;
}

OSStatus RunModalBookletDialog(const Bundle& bundle, Booklet& booklet, QAnyStringView windowName)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "BookletCreation", windowName);
    if (!window)
        return kInterfaceFileUnreadable;
    const FormPlace place{.root = window.get(), .signature = kSignature, .bundle = bundle, .ppd = nullptr};
    const BookletWindow dialog{*window, {place, kBindings}};
    BuildControls(dialog, bundle);
    SyncToUI(dialog, booklet);
    EnableControls(dialog);
    ShowLock(dialog, bundle);
    ShowChoices(dialog, bundle, booklet);
    const EventHandler handler = InstallEventHandler(
        *window,
        [&](const HitEvent&) {
            EnableControls(dialog);
            ShowChoices(dialog, bundle, booklet);
            return EventResult::NotHandled;
        },
        [&](const DrawEvent& draw) { return DrawInDialog(dialog, bundle, booklet, draw); });
    if (RunModalDialog(bundle, *window, {}) != ModalResult::OK)
        return kBookletDialogCancelled;
    SyncFromUI(dialog, booklet);
    return noErr;
}

bool FoldsBooklets()
{
    return getInstalledFeature("BookletFoldKey") || getInstalledFeature("BiFoldMultiple") ||
           getInstalledFeature("BiFoldStapleMultiple");
}

} // namespace
} // namespace kesta::booklet

namespace kesta {

OSStatus RunModalBookletOptionsDialog(const Bundle& bundle, Booklet& booklet)
{
    return booklet::RunModalBookletDialog(bundle, booklet,
                                          booklet::FoldsBooklets() ? "BookletFinishingOptions" : "BookletOptions");
}

OSStatus RunModalBookletCreationDialog(const Bundle& bundle, Booklet& booklet)
{
    return booklet::RunModalBookletDialog(bundle, booklet, "BookletCreation");
}

} // namespace kesta
