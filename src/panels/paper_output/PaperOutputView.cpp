#include "panels/paper_output/PaperOutputView.h"

#include "panels/paper_output/DelayedPrintTime.h"
#include "panels/paper_output/FinishingRules.h"
#include "panels/paper_output/FinishingSummary.h"
#include "panels/paper_output/PaperOutputPictures.h"
#include "panels/special_pages/paper/SeparatorsRules.h"
#include "pde/forms/ViewUtilities.h"
#include "pde/interface/SummaryPlaces.h"
#include "pde/menus/MenuUtilities.h"
#include "platform/plugins/Bundle.h"
#include "platform/system/Clock.h"
#include "printer/InstallableOptions.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/SummaryTextView.h"
#include "toolkit/windows/InterfaceFile.h"
#include "toolkit/windows/WindowSummary.h"

#include <QVBoxLayout>

#include <algorithm>

namespace kesta::paper_output {
namespace {

constexpr int kFieldSpacing = 16;

PopupButton* Popup(const _PaperOutputContext& panel, Control number)
{
    return FindPopupButton(panel.pane, {kSignature, number});
}

FormPlace PlaceOf(const _PaperOutputContext& panel)
{
    return {.root = panel.pane, .signature = kSignature, .bundle = *panel.bundle, .ppd = panel.ppd};
}

void SetMenu(PopupButton* popup, Menu menu)
{
    if (popup)
        popup->setMenu(std::move(menu));
}

// One field of the row ends where the others of the panel do, two have its whole width.
void ShareRow(const QWidget& row, bool isShared)
{
    for (QWidget* widget : row.findChildren<QWidget*>()) {
        if (widget->property("look").toString() == QLatin1StringView("trailing"))
            widget->setVisible(!isShared);
    }
}

// Stapling and holes share a row; the row of neither is left out.
void AppendOfficeFinishing(QWidget& target, QWidget& window, const FinishingAccessories& accessories, int& offset)
{
    QWidget* row = FindControl(&window, {kSignature, kOfficeFinishingRow});
    if (!row || (!accessories.hasStapler && !accessories.hasPunch))
        return;
    int heightOfRow = 0;
    if (accessories.hasStapler)
        AppendViewFromWindowAndUnpack(*row, window, {kSignature, kStaplingView}, heightOfRow);
    if (accessories.hasPunch)
        AppendViewFromWindowAndUnpack(*row, window, {kSignature, kPunchView}, heightOfRow);
    ShareRow(*row, accessories.hasStapler && accessories.hasPunch);
    AppendViewFromWindowAndUnpack(target, window, {kSignature, kOfficeFinishingRow}, offset);
}

void AppendViews(QWidget& target, QWidget& window, const FinishingAccessories& accessories)
{
    int offset = 0;
    for (const View view : {kJobTypeView, kPaperView, kTwoSidedView})
        AppendViewFromWindowAndUnpack(target, window, {kSignature, view}, offset);
    if (accessories.hasFolder)
        AppendViewFromWindowAndUnpack(target, window, {kSignature, kFinishingView}, offset);
    else
        AppendOfficeFinishing(target, window, accessories, offset);
    for (const View view : {kQualityView, kDestinationView})
        AppendViewFromWindowAndUnpack(target, window, {kSignature, view}, offset);
}

std::unique_ptr<QWidget> AssembleViews(QWidget& window, const FinishingAccessories& accessories)
{
    auto view = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(view.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kFieldSpacing);
    AppendViews(*view, window, accessories);
    layout->addStretch();
    EqualizeTrailingWidths(*view);
    return view;
}

void FillFinishing(const _PaperOutputContext& panel)
{
    if (auto* finishing = FindControlAs<MenuButton>(panel.pane, {kSignature, kFinishingMenuButton}))
        finishing->setMenu(FinishingMenu(*panel.bundle));
    SetMenu(Popup(panel, kStaplePopup), StapleMenu(*panel.bundle));
    SetMenu(Popup(panel, kPunchPopup), PunchMenu(*panel.bundle));
}

// A simple tray is the only place for what is printed.
void HideDestination(const _PaperOutputContext& panel)
{
    const bool isOffered = !getInstalledFeature("OCT") && !getInstalledFeature("SimpleCatchTrayKey");
    SetControlVisible(FindHere(panel, kDestinationLabel), isOffered);
    SetControlVisible(FindHere(panel, kDestinationPopup), isOffered);
}

void FillStockMenu(_PaperOutputContext& panel)
{
    auto* button = FindControlAs<MenuButton>(panel.pane, {kSignature, kStockMenuButton});
    panel.stockMenu.bundle = panel.bundle;
    panel.stockMenu.stock = &panel.options.stock;
    panel.stockMenu.summary = [&panel] { return PaperSummary(*panel.bundle, panel.ppd, panel.options); };
    panel.stockMenu.summaryView = FindHere(panel, kPaperSummary);
    panel.stockMenu.iconView = FindControlAs<PictureView>(panel.pane, {kSignature, kPaperPicture});
    InitializeStockMenuButton(button, panel.stockMenu);
    if (!button)
        return;
    button->changeItems([&](Menu& menu) {
        menu.items.push_back(
            {.title = LocalizedString(*panel.bundle, "Separators Option"), .command = kSeparatorsCommand});
    });
}

void FillMenus(_PaperOutputContext& panel)
{
    BoundOptions(panel).fill();
    FillStockMenu(panel);
    FillControl(PlaceOf(panel), kTwoSidedPopup, kTwoSided);
    FillFinishing(panel);
    HideDestination(panel);
}

// The window's summary leaves out what a job without settings would have.
void AppearInSummary(const _PaperOutputContext& panel)
{
    PaperOutputOptions plain;
    ReadTicket(plain, Ticket(), panel.ppd);
    ShowInSummary(FindHere(panel, kPaperSummary), SummaryPlace::Paper, PaperSummary(*panel.bundle, panel.ppd, plain));
    ShowInSummary(Popup(panel, kTwoSidedPopup), SummaryPlace::Sides, plain.duplex);
    ShowInSummary(Popup(panel, kStaplePopup), SummaryPlace::Finishing, plain.staple);
    ShowInSummary(Popup(panel, kPunchPopup), SummaryPlace::Finishing, plain.punch);
    ShowInSummary(FindHere(panel, kFinishingSummary), SummaryPlace::Finishing,
                  CreateFinishingString(*panel.bundle, plain, panel.rows));
    ShowInSummary(Popup(panel, kQualityPopup), SummaryPlace::Quality, plain.printQuality,
                  LocalizedString(*panel.bundle, "Quality In Summary"));
    ShowInSummary(Popup(panel, kDestinationPopup), SummaryPlace::Output, plain.outputBin,
                  LocalizedString(*panel.bundle, "Destination In Summary"));
}

// A delayed job says until when; the others are called as in their menu.
void DescribeJobType(const _PaperOutputContext& panel)
{
    const JobType& job = panel.options.jobType;
    const bool isDelayed = job.number == kJobTypeDelayedPrint;
    ShowInSummary(Popup(panel, kJobTypePopup), SummaryPlace::JobType, kJobTypeNormal,
                  isDelayed ? DelayText(*panel.bundle, job.delayedPrintTime, GetClock()) : QStringLiteral("%1"));
}

// Its number and signature as a control among them, its lines, and its place in the window's summary.
void CopyOwnProperties(const QWidget& from, QWidget& to)
{
    for (const QByteArray& name : from.dynamicPropertyNames())
        to.setProperty(name.constData(), from.property(name.constData()));
}

void DisposeSummary(QWidget* summary)
{
    if (!summary || !summary->parentWidget()->layout())
        return;
    auto* room = new QWidget(summary->parentWidget());
    CopyOwnProperties(*summary, *room);
    room->setProperty("lines", summary->property("lines"));
    room->setFixedSize(summary->size());
    delete summary->parentWidget()->layout()->replaceWidget(summary, room);
    delete summary;
}

void RestoreSummary(QWidget* room)
{
    if (!room || qobject_cast<SummaryTextView*>(room))
        return;
    auto* summary = new SummaryTextView(room->parentWidget());
    CopyOwnProperties(*room, *summary);
    summary->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    delete room->parentWidget()->layout()->replaceWidget(room, summary);
    delete room;
    summary->show();
}

// What the trailing button changes is its description for those who can't see the summary.
void ShowSummary(const _PaperOutputContext& panel, Control view, Control button, const QString& text)
{
    const auto* summary = FindControlAs<SummaryTextView>(panel.pane, {kSignature, view});
    UpdateSummaryTextView(FindHere(panel, view), text);
    QWidget* trailing = FindHere(panel, button);
    if (summary && trailing)
        trailing->setAccessibleDescription(summary->text());
}

// Without a booklet maker no other row tells of the booklet that holds two-sided printing, or ends it.
void ShowWhyTwoSided(const _PaperOutputContext& panel, bool shown)
{
    SetControlVisible(FindHere(panel, kTwoSidedReason), shown);
    SetControlVisible(FindHere(panel, kEndBookletButton), shown);
    SetControlVisible(FindHere(panel, kTwoSidedTrailing), !shown);
    QWidget* popup = Popup(panel, kTwoSidedPopup);
    if (popup)
        popup->setAccessibleDescription(shown ? LocalizedString(*panel.bundle, "Booklet Holds Two Sided") : QString());
}

void ShowPicture(const _PaperOutputContext& panel, Control number, const QString& picture)
{
    auto* view = FindControlAs<PictureView>(panel.pane, {kSignature, number});
    if (view && view->picture() != picture)
        view->setPicture(picture);
}

} // namespace

QWidget* FindHere(const _PaperOutputContext& panel, SInt32 number)
{
    return FindControl(panel.pane, {kSignature, number});
}

BoundControls<PaperOutputOptions> BoundOptions(const _PaperOutputContext& panel)
{
    return {PlaceOf(panel), kBindings};
}

BoundControls<PaperOutputOptions> BoundFinishing(const _PaperOutputContext& panel)
{
    return {PlaceOf(panel), kFinishingBindings};
}

void BuildView(_PaperOutputContext& panel)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(*panel.bundle, "Paper_Output", "Panel");
    if (!window || !panel.pane)
        return;
    panel.rows = RowsFor(panel.accessories, panel.options);
    panel.view = EmbedAndShowControl(AssembleViews(*window, panel.rows), *panel.pane);
    FillMenus(panel);
    AppearInSummary(panel);
}

void DisposeSummaries(_PaperOutputContext& panel)
{
    DisposeSummary(FindHere(panel, kPaperSummary));
    DisposeSummary(FindHere(panel, kFinishingSummary));
}

void RestoreSummaries(_PaperOutputContext& panel)
{
    RestoreSummary(FindHere(panel, kPaperSummary));
    RestoreSummary(FindHere(panel, kFinishingSummary));
    panel.stockMenu.summaryView = FindHere(panel, kPaperSummary);
}

void ShowOptions(_PaperOutputContext& panel)
{
    BoundOptions(panel).show(panel.options, Showing::TicketRead);
    EnableDisableJobTypeSetupButton(panel);
    ShowPaper(panel);
    ShowFinishing(panel);
}

// Separators stay in the job when the paper is no transparency any more: the menu shows them whatever the paper.
void ShowPaper(const _PaperOutputContext& panel)
{
    ShowStock(panel.stockMenu);
    if (MenuControl* button = panel.stockMenu.button) {
        button->changeItems([&panel](Menu& menu) {
            const auto item = std::ranges::find(menu.items, kSeparatorsCommand, &MenuItem::command);
            if (item != menu.items.end())
                item->checked = panel.options.separatorCount != kSeparatorsNone;
        });
    }
}

void ShowFinishing(const _PaperOutputContext& panel)
{
    ChangeFinishingMenus(panel, [&](Menu& menu) { MarkFinishingMenu(menu, panel.options); });
    if (auto* finishing = FindControlAs<MenuButton>(panel.pane, {kSignature, kFinishingMenuButton}))
        finishing->changeItems([&](Menu& menu) { AddNotOffered(menu, *panel.bundle, panel.options); });
    BoundFinishing(panel).show(panel.options, Showing::TicketRead);
    const QString summary = CreateFinishingString(*panel.bundle, panel.options, panel.rows);
    ShowSummary(panel, kFinishingSummary, kFinishingMenuButton, summary.chopped(summary.endsWith(u'\n') ? 1 : 0));
    ShowPictures(panel);
}

void ShowPictures(const _PaperOutputContext& panel)
{
    const PaperOutputOptions& options = panel.options;
    ShowPicture(panel, kJobTypePicture, JobTypePicture(options.jobType.number));
    ShowPicture(panel, kTwoSidedPicture, TwoSidedPicture(options));
    ShowPicture(panel, kStaplePicture, StaplePicture(options.staple));
    ShowPicture(panel, kPunchPicture, PunchPicture(options.punch));
    ShowPicture(panel, kFinishingPicture, FinishingPicture(options));
    ShowPicture(panel, kQualityPicture, OutputColorPicture(options.printQuality));
}

void ShowTwoSided(const _PaperOutputContext& panel)
{
    const bool isBooklet = panel.options.booklet.isOn();
    PopupButton* popup = Popup(panel, kTwoSidedPopup);
    ShowInControl(PlaceOf(panel), kTwoSidedPopup, kTwoSided,
                  isBooklet ? kTwoSidedLongEdge : panel.options.duplexPopupValue, kOneSided);
    SetControlEnabled(popup, !isBooklet);
    SetControlEnabled(FindHere(panel, kTwoSidedLabel), !isBooklet);
    SetControlEnabled(FindHere(panel, kTwoSidedPicture), !isBooklet);
    ShowWhyTwoSided(panel, isBooklet && !panel.accessories.hasFolder);
}

bool EnableDisableJobTypeSetupButton(const _PaperOutputContext& panel)
{
    DescribeJobType(panel);
    const bool isFax = panel.options.jobType.number == kJobTypeFax;
    const bool enabled = JobTypeNeedsSetup(panel.options.jobType.number) && !isFax;
    if (QWidget* button = FindHere(panel, kJobTypeSetupButton)) {
        const QString reason = isFax ? LocalizedString(*panel.bundle, "Fax Setup Unavailable Header") : QString();
        button->setToolTip(reason);
        button->setAccessibleDescription(reason);
        button->setEnabled(enabled);
    }
    return enabled;
}

void ChangeFinishingMenus(const _PaperOutputContext& panel, const std::function<void(Menu&)>& change)
{
    for (const Control number : {kFinishingMenuButton, kStaplePopup, kPunchPopup}) {
        if (auto* menu = FindControlAs<MenuControl>(panel.pane, {kSignature, number}))
            menu->changeItems(change);
    }
}

} // namespace kesta::paper_output
