#include "panels/special_pages/editors/ExceptionsHandler.h"

#include "panels/special_pages/editors/ImageShiftDialog.h"
#include "panels/special_pages/editors/PageDescriptions.h"
#include "panels/special_pages/paper/StockTypeSetupDialog.h"
#include "pde/forms/DialogCommands.h"
#include "pde/forms/ViewUtilities.h"
#include "pde/menus/LocalizationUtilities.h"
#include "pde/menus/MenuUtilities.h"
#include "platform/plugins/Bundle.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/TabControl.h"
#include "toolkit/controls/TextInput.h"
#include "toolkit/windows/InterfaceFile.h"

namespace kesta {
namespace exceptions {
namespace {

constexpr QLatin1StringView kHelpPage("Special_Pages/Add_Exceptions/m_add_exceptions_page.htm");

struct _ExceptionsEventHandlerData {
    const Bundle& bundle;
    QWidget& window;
    DialogMode mode;
    ExceptionPage exception; // the working copy
    ExceptionPageList& list;
    const ExceptionPage* edited;
    const EditorCalls& calls;
    _StockMenuCommandEventHandlerData paper = {};

    QWidget* control(SInt32 number) const { return FindControl(&window, {kSignature, number}); }
    PopupButton* plexes() const { return FindPopupButton(&window, {kSignature, kTwoSidedPopup}); }
};

const char* PlexPicture(SInt32 plex)
{
    switch (plex) {
    case 1:
        return "2SidedPrinting_1Sided.gif";
    case 2:
        return "2SidedPrinting_2Sided.gif";
    case 3:
        return "2SidedPrinting_2SidedFlip.gif";
    default:
        return "2SidedPrinting_PrnDef.gif";
    }
}

void ShowTab(const _ExceptionsEventHandlerData& editor)
{
    QWidget* const panes[] = {editor.control(kPaperPane), editor.control(kImagePane)};
    UpdateTabControl(FindControlAs<TabControl>(&editor.window, {kSignature, kTabs}), panes);
}

void KeepRoomForBothTabs(const _ExceptionsEventHandlerData& editor)
{
    for (const SInt32 number : {kPaperPane, kImagePane}) {
        if (QWidget* pane = editor.control(number)) {
            QSizePolicy policy = pane->sizePolicy();
            policy.setRetainSizeWhenHidden(true);
            pane->setSizePolicy(policy);
        }
    }
}

void ShowPlex(const _ExceptionsEventHandlerData& editor)
{
    const SInt32 plex = editor.exception.plex();
    editors::ShowTicketValue(editor.plexes(), plex, PlexText(editor.bundle, plex));
    if (auto* picture = FindControlAs<PictureView>(&editor.window, {kSignature, kTwoSidedPicture}))
        picture->setPicture(QString::fromLatin1(PlexPicture(plex)));
}

void ShowImageShift(const _ExceptionsEventHandlerData& editor)
{
    UpdateSummaryTextView(editor.control(kShiftSummary),
                          ImageShiftSummary(editor.bundle, editor.exception.imageShift()));
}

void SyncToUI(const _ExceptionsEventHandlerData& editor, const QString& pages)
{
    SetFieldText(editor.control(editors::kPageField), pages);
    editors::EnableOK(editor.window, !pages.isEmpty());
    ShowStock(editor.paper);
    ShowPlex(editor);
    ShowImageShift(editor);
}

void DefaultExceptions(_ExceptionsEventHandlerData& editor)
{
    DefaultStock(editor.exception.stock(), JobContext::ExceptionPage);
    editor.exception.setPlex(kUnset);
    SyncToUI(editor, {});
}

// The two-sided choices of the printer, and first of all the job's own.
void FillPlexes(const _ExceptionsEventHandlerData& editor)
{
    Menu menu;
    PopulateChoices(menu, editor.bundle, "Duplex", kNoCommand, JobContext::ExceptionPage);
    if (PopupButton* plexes = editor.plexes())
        plexes->setMenu(std::move(menu));
}

QString PagesOf(const ExceptionPage& exception)
{
    const QString start = QString::number(exception.startPage());
    const SInt32 last = LastPageOf(exception);
    return last == exception.startPage() ? start : start + u'-' + QString::number(last);
}

void InitializeExceptions(_ExceptionsEventHandlerData& editor, const Stock* jobStock)
{
    const bool isEdit = editor.mode == DialogMode::Edit;
    SetLocalizedWindowTitle(editor.bundle, isEdit ? "Edit Exceptions Title" : "Add Exceptions Title", &editor.window);
    FillPlexes(editor);
    editor.paper = {.bundle = &editor.bundle, .stock = &editor.exception.stock(), .context = JobContext::ExceptionPage};
    editors::InitializePageEditor(editor.paper, editor.window, kSignature, jobStock);
    KeepRoomForBothTabs(editor);
    ShowTab(editor);
    if (!isEdit)
        return DefaultExceptions(editor);
    editor.window.setAccessibleDescription(CreateExceptionAttributesDescription(editor.bundle, editor.exception));
    SyncToUI(editor, PagesOf(editor.exception));
}

bool AcceptExceptions(_ExceptionsEventHandlerData& editor)
{
    std::vector<ExceptionPage> made;
    QWidget* field = editor.control(editors::kPageField);
    OSStatus status = MakeExceptions(editor.exception, FieldText(field), editor.list, editor.edited, made);
    if (status == noErr)
        status = PlacePages(editor.list, editor.edited, PointersTo(made), editor.calls);
    if (status != noErr)
        editors::RefusePages(editor.bundle, field, status);
    return status == noErr;
}

EventResult HandleCommand(_ExceptionsEventHandlerData& editor, const CommandEvent& chosen)
{
    ModalResult result{};
    if (editors::ChoseTabStock(chosen, editor.exception.stock())) {
        RunModalTabStockSetupDialog(editor.bundle, editor.exception.stock(), editor.exception.imageShift(), result);
        ShowStock(editor.paper);
        ShowImageShift(editor);
    } else if (chosen.command == kCommandDefaults) {
        DefaultExceptions(editor);
    }
    return EventResult::NotHandled;
}

EventResult HandleHit(_ExceptionsEventHandlerData& editor, const HitEvent& hit)
{
    ModalResult result{};
    switch (hit.control.number) {
    case kTabs:
        ShowTab(editor);
        break;
    case kTwoSidedPopup:
        editor.exception.setPlex(hit.ticketValue);
        ShowPlex(editor);
        break;
    case kShiftButton:
        RunModalImageShiftDialog(editor.bundle, editor.exception.imageShift(), result);
        ShowImageShift(editor);
        break;
    }
    return EventResult::NotHandled;
}

EventHandler ExceptionsEventHandler(_ExceptionsEventHandlerData& editor)
{
    return InstallEventHandler(
        editor.window, [&](const CommandEvent& chosen) { return HandleCommand(editor, chosen); },
        [&](const HitEvent& hit) { return HandleHit(editor, hit); },
        [&](const TextLengthEvent& event) {
            editors::EnableOK(editor.window, event.length == TextLength::LongEnough);
            return EventResult::NotHandled;
        });
}

} // namespace
} // namespace exceptions

OSStatus RunModalExceptionsDialog(const Bundle& bundle, DialogMode mode, const Stock* jobStock, ExceptionPageList& list,
                                  const ExceptionPage* edited, const EditorCalls& calls, ModalResult& result)
{
    using namespace exceptions;
    if (mode == DialogMode::Edit && !edited)
        return kMissingArgument;
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "SpecialPages", "Office Exceptions");
    if (!window)
        return kInterfaceFileUnreadable;
    _ExceptionsEventHandlerData editor{.bundle = bundle,
                                       .window = *window,
                                       .mode = mode,
                                       .exception = edited ? *edited : ExceptionPage(),
                                       .list = list,
                                       .edited = mode == DialogMode::Edit ? edited : nullptr,
                                       .calls = calls};
    InitializeExceptions(editor, jobStock);
    const EventHandler handler = ExceptionsEventHandler(editor);
    editors::FocusPageField(*window, kSignature);
    result = RunModalDialog(bundle, *window, kHelpPage, [&] { return AcceptExceptions(editor); });
    FinalizeStockMenuButton(editor.paper);
    return noErr;
}

} // namespace kesta
