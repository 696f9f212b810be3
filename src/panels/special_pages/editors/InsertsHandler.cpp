#include "panels/special_pages/editors/InsertsHandler.h"

#include "panels/special_pages/editors/PageDescriptions.h"
#include "panels/special_pages/paper/PreCutTabStockSetup.h"
#include "pde/forms/DialogCommands.h"
#include "pde/menus/LocalizationUtilities.h"
#include "pde/menus/MenuUtilities.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/controls/TextInput.h"
#include "toolkit/windows/InterfaceFile.h"

namespace kesta {
namespace inserts {
namespace {

constexpr QLatin1StringView kHelpPage("Special_Pages/Add_Inserts/m_add_inserts_page.htm");

struct _InsertsEventHandlerData {
    const Bundle& bundle;
    QWidget& window;
    DialogMode mode;
    Insert insert; // the working copy
    InsertList& list;
    const Insert* edited;
    const EditorCalls& calls;
    _StockMenuCommandEventHandlerData paper = {};

    QWidget* control(SInt32 number) const { return FindControl(&window, {kSignature, number}); }
    PopupButton* options() const { return FindPopupButton(&window, {kSignature, kOptionPopup}); }
    SpinField* quantity() const { return FindControlAs<SpinField>(&window, {kSignature, kQuantityField}); }
    SInt32 option() const { return GetPopupButtonTicketValue(options()); }
    QString pages() const { return FieldText(control(editors::kPageField)); }
};

void FollowOption(const _InsertsEventHandlerData& editor)
{
    const bool isAfterPage = editor.option() != kBeforePage1;
    if (!isAfterPage)
        SetFieldText(editor.control(editors::kPageField), {});
    for (const SInt32 number : {editors::kPageLabel, editors::kPageField, editors::kPageHint})
        SetControlEnabled(editor.control(number), isAfterPage);
    editors::EnableOK(editor.window, !isAfterPage || !editor.pages().isEmpty());
    SetLocalizedStaticText(editor.bundle, isAfterPage ? "Sheets After Pages" : "Sheets Before Page 1",
                           editor.control(kQuantityHint));
    if (auto* picture = FindControlAs<PictureView>(&editor.window, {kSignature, kOptionPicture}))
        picture->setPicture(QString::fromLatin1(isAfterPage ? "SpclPgs_InsertsOptions-AfterPage(s).gif"
                                                            : "SpclPgs_InsertsOptions-BeforePage1.gif"));
}

void SyncToUI(const _InsertsEventHandlerData& editor, const QString& pages, SInt32 option)
{
    SetPopupButtonToTicketValue(editor.options(), option);
    SetFieldText(editor.control(editors::kPageField), pages);
    if (SpinField* quantity = editor.quantity())
        quantity->setNumber(editor.insert.quantity());
    FollowOption(editor);
    ShowStock(editor.paper);
}

void DefaultInserts(_InsertsEventHandlerData& editor)
{
    DefaultStock(editor.insert.stock(), JobContext::Insert);
    editor.insert.setQuantity(1);
    SyncToUI(editor, {}, kAfterPage);
}

void InitializeInserts(_InsertsEventHandlerData& editor, const Stock* jobStock)
{
    const bool isEdit = editor.mode == DialogMode::Edit;
    SetLocalizedWindowTitle(editor.bundle, isEdit ? "InsertsDialogTitleEdit" : "InsertsDialogTitleAdd", &editor.window);
    PopulatePopupButtonFromMap(editor.bundle, editor.options(), _InsertOptionMap, JobContext::Insert);
    if (SpinField* quantity = editor.quantity())
        quantity->setLimits(1, kMostSheets);
    editor.paper = {.bundle = &editor.bundle, .stock = &editor.insert.stock(), .context = JobContext::Insert};
    editors::InitializePageEditor(editor.paper, editor.window, kSignature, jobStock);
    if (!isEdit)
        return DefaultInserts(editor);
    editor.window.setAccessibleDescription(CreateInsertAttributesDescription(editor.bundle, editor.insert));
    const SInt32 page = editor.insert.startPage();
    SyncToUI(editor, page == 0 ? QString() : QString::number(page), page == 0 ? kBeforePage1 : kAfterPage);
}

bool AcceptInserts(_InsertsEventHandlerData& editor)
{
    if (const SpinField* quantity = editor.quantity())
        editor.insert.setQuantity(quantity->number());
    std::vector<Insert> made;
    OSStatus status = MakeInserts(editor.insert, editor.option(), editor.pages(), made);
    if (status == noErr)
        status = PlacePages(editor.list, editor.edited, PointersTo(made), editor.calls);
    if (status != noErr)
        editors::RefusePages(editor.bundle, editor.control(editors::kPageField), status);
    return status == noErr;
}

EventResult HandleCommand(_InsertsEventHandlerData& editor, const CommandEvent& chosen)
{
    ModalResult result{};
    if (editors::ChoseTabStock(chosen, editor.insert.stock())) {
        RunModalPreCutTabStockSetup(editor.bundle, editor.mode, JobContext::Insert, editor.insert.stock(), result);
        ShowStock(editor.paper);
    } else if (chosen.command == kCommandDefaults) {
        DefaultInserts(editor);
    }
    return EventResult::NotHandled;
}

EventHandler InsertsEventHandler(_InsertsEventHandlerData& editor)
{
    return InstallEventHandler(
        editor.window, [&](const CommandEvent& chosen) { return HandleCommand(editor, chosen); },
        [&](const HitEvent& hit) {
            if (hit.control.number == kOptionPopup)
                FollowOption(editor);
            return EventResult::NotHandled;
        },
        [&](const TextLengthEvent& event) {
            editors::EnableOK(editor.window, event.length == TextLength::LongEnough);
            return EventResult::NotHandled;
        });
}

} // namespace
} // namespace inserts

OSStatus RunModalInsertsDialog(const Bundle& bundle, DialogMode mode, const Stock* jobStock, InsertList& list,
                               const Insert* edited, const EditorCalls& calls, ModalResult& result)
{
    using namespace inserts;
    if (mode == DialogMode::Edit && !edited)
        return kMissingArgument;
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "SpecialPages", "Inserts");
    if (!window)
        return kInterfaceFileUnreadable;
    _InsertsEventHandlerData editor{.bundle = bundle,
                                    .window = *window,
                                    .mode = mode,
                                    .insert = edited ? *edited : Insert(),
                                    .list = list,
                                    .edited = mode == DialogMode::Edit ? edited : nullptr,
                                    .calls = calls};
    InitializeInserts(editor, jobStock);
    const EventHandler handler = InsertsEventHandler(editor);
    editors::FocusPageField(*window, kSignature);
    if (PopupButton* options = editor.options(); options && editor.option() == kBeforePage1)
        options->setFocus();
    result = RunModalDialog(bundle, *window, kHelpPage, [&] { return AcceptInserts(editor); });
    FinalizeStockMenuButton(editor.paper);
    return noErr;
}

} // namespace kesta
