#pragma once

#include "panels/booklet_watermark/BookletWatermarkOptions.h"
#include "panels/booklet_watermark/watermark/PreviewBuffer.h"
#include "pde/interface/PanelOperations.h"
#include "toolkit/controls/ControlEvent.h"

#include <QPointer>

extern "C" KestaStatus GetBookletWatermarkPanelInterface(const PanelInterfaceHolder** holder);

namespace kesta::booklet_watermark {

// The numbers of the controls in BookletWatermarkPanel/Panel.
inline constexpr FourCharCode kSignature = "BkWm"_code;
enum Control : SInt32 {
    kIllustration = 1,
    kLayoutLabel = 2,
    kLayoutPopup = 3,
    kOptionsButton = 4,
    kLockRow = 5,
    kLockMark = 6,
    kLockReason = 7,
    kSpecialPagesLink = 8,
    kBordersLabel = 9,
    kBordersPopup = 10,
    kPreview = 11,
    kWatermarkLabel = 12,
    kWatermarkPopup = 13,
    kLayerHint = 14,
    kNoteRow = 15,
    kNoteMark = 16,
    kNote = 17,
};

struct _BookletWatermarkContext {
    const Bundle* bundle = nullptr;
    PrintSession* session = nullptr; // of the last Sync
    QPointer<QWidget> pane;          // given by the shell
    QPointer<QWidget> view;          // what Open puts into it
    ppd_file_t* ppd = nullptr;
    BookletWatermarkOptions options;
    QSizeF page{612, 792};                // points
    std::optional<PreviewBuffer> preview; // the page as a PDF, from the first Open on
    bool isPreviewDue = true;
    WatermarkNotes notes;                        // of the preview
    FontProblem fontProblem = FontProblem::None; // of the watermark that it shows
    EventHandler handler;
};

// The panel of the dialog that is open; null without one.
extern _BookletWatermarkContext* _bookletWatermarkContext;

PanelDescription Prologue(_BookletWatermarkContext& panel);
OSStatus Initialize(_BookletWatermarkContext& panel, QWidget& pane, PrintSession& session);
OSStatus Sync(_BookletWatermarkContext& panel, PrintSession& session, SyncDirection direction);
OSStatus Open(_BookletWatermarkContext& panel);
void Terminate(_BookletWatermarkContext& panel, OSStatus status);

} // namespace kesta::booklet_watermark
