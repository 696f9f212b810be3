#include "panels/booklet_watermark/BookletWatermarkHandler.h"

#include "panels/booklet_watermark/BookletWatermarkView.h"
#include "panels/booklet_watermark/WatermarkCommands.h"
#include "panels/booklet_watermark/booklet/BookletDialog.h"
#include "pde/interface/PanelChoice.h"
#include "pde/ticket/TicketUtilities.h"
#include "toolkit/controls/Controls.h"

#include <QTimer>

namespace kesta::booklet_watermark {
namespace {

void TellOthers(_BookletWatermarkContext& panel)
{
    if (Ticket* settings = GetTicketFromSession(*panel.session, kPMPrintSettingsTicket).ticket)
        WriteBookletAtOnce(panel.options, *settings);
    SendControlEvent(*panel.view, CommandEvent{.command = kCommandOthersRead});
}

bool IsGoneThrough(const _BookletWatermarkContext& panel)
{
    const PopupButton* popup = FindPopupButton(panel.view, {kSignature, kWatermarkPopup});
    return popup && popup->isGoneThrough();
}

// On the way past these items with the arrow keys nobody wants their windows.
bool OpensWindow(FourCharCode command)
{
    return command == kNewCommand || command == kEditCommand || command == kDeleteCommand;
}

// Painting is no time for windows, nor for texts that move others: what the first sight of the panel brings comes after
// it.
void FollowDrawing(_BookletWatermarkContext& panel)
{
    QTimer::singleShot(0, panel.view, [&panel] {
        if (_bookletWatermarkContext != &panel) // the dialog may have been closed by then
            return;
        ShowNote(panel);
        OfferOwnWatermarks(panel);
    });
}

EventResult Draw(_BookletWatermarkContext& panel, const DrawEvent& draw)
{
    if (draw.control.number == kPreview && panel.isPreviewDue) {
        renderWatermark(panel);
        FollowDrawing(panel);
    }
    return DrawPanelControl(panel, draw);
}

} // namespace

void InstallBookletWatermarkHandler(_BookletWatermarkContext& panel)
{
    panel.handler = InstallEventHandler(
        *panel.pane, [&panel](const HitEvent& hit) { return bookletWatermarkEventHandler(panel, hit); },
        [&panel](const CommandEvent& chosen) { return bookletWatermarkEventHandler(panel, chosen); },
        [&panel](const DrawEvent& draw) { return Draw(panel, draw); });
}

EventResult bookletWatermarkEventHandler(_BookletWatermarkContext& panel, const HitEvent& hit)
{
    BoundOptions(panel).take(hit, panel.options);
    switch (hit.control.number) {
    case kOptionsButton:
        if (RunModalBookletOptionsDialog(*panel.bundle, panel.options.booklet) != noErr)
            break;
        [[fallthrough]];
    case kLayoutPopup:
        TellOthers(panel);
        [[fallthrough]];
    case kBordersPopup:
        ShowBooklet(panel);
        break;
    }
    return EventResult::NotHandled;
}

EventResult bookletWatermarkEventHandler(_BookletWatermarkContext& panel, const CommandEvent& chosen)
{
    if (chosen.control.number != kWatermarkPopup)
        return EventResult::NotHandled;
    if (!OpensWindow(chosen.command) || !IsGoneThrough(panel))
        RunWatermarkCommand(panel, chosen);
    ShowWatermark(panel);
    return EventResult::NotHandled;
}

} // namespace kesta::booklet_watermark
