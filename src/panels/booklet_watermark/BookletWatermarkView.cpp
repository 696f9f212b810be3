#include "panels/booklet_watermark/BookletWatermarkView.h"

#include "panels/booklet_watermark/WatermarkList.h"
#include "panels/booklet_watermark/watermark/DrawingLibrary.h"
#include "panels/booklet_watermark/watermark/PageDrawing.h"
#include "panels/booklet_watermark/watermark/WatermarkNoteText.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"
#include "pde/forms/InfoMark.h"
#include "pde/interface/SummaryPlaces.h"
#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/windows/WindowSummary.h"

#include <QPainter>

namespace kesta::booklet_watermark {
namespace {

template <SInt32 Booklet::*member> constexpr Access<BookletWatermarkOptions> kOfBooklet{
    [](const BookletWatermarkOptions& options) { return options.booklet.*member; },
    [](BookletWatermarkOptions& options, SInt32 value) { options.booklet.*member = value; }};

// Ticket and PPD have the booklet in their own ways (BookletWatermarkOptions.cpp).
constexpr auto kBindings = std::to_array<Binding<BookletWatermarkOptions>>({
    {kLayoutPopup, kOfBooklet<&Booklet::layout>, {.map = EnabledDisabledMap}},
    {kBordersPopup, kOfBooklet<&Booklet::drawOutlines>, {.map = PageBordersMap}},
});

PopupButton* WatermarkPopup(const _BookletWatermarkContext& panel)
{
    return FindPopupButton(panel.view, {kSignature, kWatermarkPopup});
}

QString SelectedName(const _BookletWatermarkContext& panel)
{
    return WatermarkOfItem(listOfWatermarks(), panel.options.watermark.item);
}

void ShowLock(const _BookletWatermarkContext& panel)
{
    const BookletLock& lock = panel.options.lock;
    SetControlText(FindHere(panel, kLockReason), BookletLockReason(*panel.bundle, lock));
    SetControlVisible(FindHere(panel, kLockRow), lock.isLocked());
    SetControlVisible(FindHere(panel, kSpecialPagesLink), lock.bySpecialPages);
}

// Where the printer folds booklets, the summary of its finishing says this, too.
void ShowBookletInSummary(const _BookletWatermarkContext& panel)
{
    const bool isSaid = panel.options.booklet.isOn() && !panel.options.foldsBooklets;
    if (QWidget* popup = FindHere(panel, kLayoutPopup))
        SetSummaryPhrases(*popup, SummaryPlace::Finishing,
                          isSaid ? QStringList(LocalizedString(*panel.bundle, "Booklet Layout")) : QStringList());
}

QString SummaryPhrase(const _BookletWatermarkContext& panel)
{
    const WatermarkChoice& watermark = panel.options.watermark;
    if (!watermark.missing.isEmpty())
        return LocalizedFormat(*panel.bundle, "Watermark Missing Summary", {watermark.missing});
    const QString name = SelectedName(panel);
    return name.isEmpty() ? QString() : LocalizedFormat(*panel.bundle, "Watermark Summary", {name});
}

QStringList Sentences(const _BookletWatermarkContext& panel)
{
    const WatermarkChoice& watermark = panel.options.watermark;
    if (!watermark.missing.isEmpty())
        return {LocalizedFormat(*panel.bundle, "Watermark Not Here", {watermark.missing})};
    if (watermark.item == kNoWatermarkItem || panel.isPreviewDue)
        return {};
    _WatermarkData record;
    if (!loadWatermarkData(kWatermarkFile, SelectedName(panel), record))
        return {LocalizedFormat(*panel.bundle, "Watermark Not Here", {SelectedName(panel)})};
    const bool isUnkept = panel.options.fontProblem == FontProblem::NotStored;
    return WatermarkSentences(*panel.bundle, record, panel.notes,
                              isUnkept ? FontProblem::NotStored : panel.fontProblem);
}

} // namespace

QWidget* FindHere(const _BookletWatermarkContext& panel, Control number)
{
    return FindControl(panel.view, {kSignature, number});
}

BoundControls<BookletWatermarkOptions> BoundOptions(const _BookletWatermarkContext& panel)
{
    return {{.root = panel.view, .signature = kSignature, .bundle = *panel.bundle, .ppd = panel.ppd}, kBindings};
}

void BuildControls(_BookletWatermarkContext& panel)
{
    BoundOptions(panel).fill();
    FillWatermarkMenu(panel);
}

void ShowOptions(_BookletWatermarkContext& panel)
{
    ShowBooklet(panel);
    ShowWatermark(panel);
}

void ShowBooklet(const _BookletWatermarkContext& panel)
{
    if (!panel.view)
        return;
    const Booklet& booklet = panel.options.booklet;
    BoundOptions(panel).show(panel.options, Showing::TicketRead);
    for (const Control number : {kLayoutLabel, kLayoutPopup})
        SetControlEnabled(FindHere(panel, number), !panel.options.lock.isLocked());
    for (const Control number : {kBordersLabel, kBordersPopup})
        SetControlEnabled(FindHere(panel, number), booklet.isOn());
    if (auto* picture = FindControlAs<PictureView>(panel.view, {kSignature, kIllustration}))
        picture->setPicture(QString::fromLatin1(BookletIllustration(booklet)));
    ShowLock(panel);
    ShowBookletInSummary(panel);
}

void FillWatermarkMenu(const _BookletWatermarkContext& panel)
{
    if (PopupButton* popup = WatermarkPopup(panel))
        popup->setMenu(WatermarkMenu(*panel.bundle, listOfWatermarks()));
}

void ShowWatermark(_BookletWatermarkContext& panel)
{
    panel.isPreviewDue = true;
    PopupButton* popup = WatermarkPopup(panel);
    if (!popup)
        return;
    const WatermarkChoice& watermark = panel.options.watermark;
    popup->changeItems([&](Menu& menu) { MarkWatermarkMenu(menu, watermark); });
    popup->setValue(watermark.item);
    const QString phrase = SummaryPhrase(panel);
    SetSummaryPhrases(*popup, SummaryPlace::Watermark, phrase.isEmpty() ? QStringList() : QStringList(phrase));
    const QString layer = LayerSummary(*panel.bundle, watermark);
    SetControlText(FindHere(panel, kLayerHint), layer);
    popup->setAccessibleDescription(layer);
    if (QWidget* preview = FindHere(panel, kPreview)) {
        preview->setAccessibleDescription(SelectedName(panel));
        preview->update();
    }
    ShowNote(panel);
}

void ShowNote(const _BookletWatermarkContext& panel)
{
    const QString note = Sentences(panel).join(u' ');
    SetControlText(FindHere(panel, kNote), note);
    SetControlVisible(FindHere(panel, kNoteRow), !note.isEmpty());
}

void renderWatermark(_BookletWatermarkContext& panel)
{
    panel.isPreviewDue = false;
    panel.notes = {};
    panel.fontProblem = FontProblem::None;
    if (!panel.preview)
        return;
    panel.preview->clear();
    const QString name = SelectedName(panel);
    if (name.isEmpty()) // the page is white without anybody's help; see DrawingLibrary.h
        return;
    const DrawingLibrary& drawing = GetDrawingLibrary();
    panel.notes = drawing.renderSavedWatermark(kWatermarkFile, name, panel.page, *panel.preview);
    _WatermarkData record;
    if (loadWatermarkData(kWatermarkFile, name, record) && record.isText)
        panel.fontProblem = drawing.CheckFont(record).problem;
}

EventResult DrawPanelControl(_BookletWatermarkContext& panel, const DrawEvent& draw)
{
    switch (draw.control.number) {
    case kLockMark:
    case kNoteMark:
        DrawInfoMark(*draw.painter, draw.bounds, *panel.bundle);
        return EventResult::Handled;
    case kPreview:
        DrawPage(*draw.painter, PagePlace(panel.page, draw.bounds), panel.page,
                 panel.preview ? panel.preview->content() : QByteArrayView());
        return EventResult::Handled;
    default:
        return EventResult::NotHandled;
    }
}

} // namespace kesta::booklet_watermark
