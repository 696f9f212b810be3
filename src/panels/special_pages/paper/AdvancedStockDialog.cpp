#include "panels/special_pages/paper/AdvancedStockDialog.h"

#include "panels/special_pages/paper/CustomStockSizeDialog.h"
#include "panels/special_pages/paper/StockDescriptionSetup.h"
#include "panels/special_pages/paper/StockIcon.h"
#include "panels/special_pages/paper/StockMenuRules.h"
#include "pde/forms/DialogCommands.h"
#include "pde/forms/TextFieldUtilities.h"
#include "pde/menus/MenuUtilities.h"
#include "platform/plugins/Bundle.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/windows/InterfaceFile.h"

namespace kesta {
namespace advancedstock {
namespace {

struct AdvancedStockDialog {
    const Bundle& bundle;
    QWidget& window;
    JobContext context;
    Stock stock; // as it would be on OK

    PopupButton* popup(Control number) const { return FindPopupButton(&window, {kSignature, number}); }
    QLineEdit* description() const { return FindTextField(&window, {kSignature, kDescriptionField}); }
};

using PopulateFunction = void (*)(Menu&, const Bundle&, JobContext);

void FillPopup(const AdvancedStockDialog& dialog, Control number, PopulateFunction populate)
{
    if (PopupButton* popup = dialog.popup(number)) {
        Menu menu;
        populate(menu, dialog.bundle, dialog.context);
        popup->setMenu(std::move(menu));
    }
}

// A value that the menu lacks gets an item before all others: a pop-up does not show what the paper is not.
void ShowValue(PopupButton* popup, SInt32 value, const QString& titleWhenUnknown)
{
    if (!popup || SetPopupButtonToTicketValue(popup, value))
        return;
    Menu menu = popup->menu();
    menu.items.insert(menu.items.begin(), {.title = titleWhenUnknown, .value = value});
    popup->setMenu(std::move(menu));
    popup->setValue(1);
}

QString WordForUnset(const AdvancedStockDialog& dialog)
{
    return LocalizedString(dialog.bundle, dialog.context == JobContext::Job ? "PrinterDefault" : "UseJobSetting");
}

void ShowPaper(const AdvancedStockDialog& dialog)
{
    const Stock& stock = dialog.stock;
    const QString unknown = WordForUnset(dialog);
    ShowValue(dialog.popup(kSizePopup), stock.size(), unknown);
    ShowValue(dialog.popup(kColorPopup), stock.color(), unknown);
    ShowValue(dialog.popup(kTypePopup), stock.type(), unknown);
    ShowValue(dialog.popup(kPunchedPopup), stock.punched(), unknown);
    if (auto* icon = FindControlAs<PictureView>(&dialog.window, {kSignature, kIcon}))
        icon->setPictures(StockIconPictures(&stock));
}

void SyncToUI(const AdvancedStockDialog& dialog)
{
    FillPopup(dialog, kSizePopup, PopulateStockSizeMenu);
    FillPopup(dialog, kColorPopup, PopulateStockColorMenu);
    FillPopup(dialog, kTypePopup, PopulateStockTypeMenu);
    PopulatePopupButtonFromMap(dialog.bundle, dialog.popup(kPunchedPopup), _StockPunchedMap, dialog.context);
    if (auto* weight = FindControlAs<SpinField>(&dialog.window, {kSignature, kWeightField})) {
        weight->setLimits(0, kMostStockWeight);
        weight->setSpecialValueText(WordForUnset(dialog));
        weight->setSuffix(u' ' + LocalizedString(dialog.bundle, "Stock Weight Unit"));
        weight->setNumber(dialog.stock.weight() == kUnset ? 0 : dialog.stock.weight());
    }
    if (QLineEdit* description = dialog.description()) {
        LimitInputLengthAndCharacters(description, {.maximumLength = kMostDescriptionLength});
        description->setText(dialog.stock.description());
    }
    ShowPaper(dialog);
}

void ChooseSize(AdvancedStockDialog& dialog, SInt32 size)
{
    if (size != kStockSizeCustom)
        return dialog.stock.setSize(size);
    PaperSize custom{dialog.stock.width(), dialog.stock.length()};
    ModalResult result = ModalResult::Cancel;
    if (RunModalCustomStockSizeDialog(dialog.bundle, result, custom) != noErr || result != ModalResult::OK)
        return;
    dialog.stock.setWidth(custom.width);
    dialog.stock.setLength(custom.length);
}

EventResult HandleHit(AdvancedStockDialog& dialog, const HitEvent& hit)
{
    switch (hit.control.number) {
    case kSizePopup:
        ChooseSize(dialog, hit.ticketValue);
        break;
    case kColorPopup:
        dialog.stock.setColor(hit.ticketValue);
        break;
    case kTypePopup:
        dialog.stock.setType(hit.ticketValue);
        break;
    case kPunchedPopup:
        dialog.stock.setPunched(hit.ticketValue);
        break;
    case kWeightField:
        dialog.stock.setWeight(hit.value == 0 ? kUnset : hit.value);
        break;
    }
    ShowPaper(dialog);
    return EventResult::NotHandled;
}

} // namespace
} // namespace advancedstock

OSStatus RunModalAdvancedStockDialog(const Bundle& bundle, JobContext context, Stock& stock, ModalResult& result)
{
    using namespace advancedstock;
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "AdvancedStockDialog", "AdvancedStock");
    if (!window)
        return kInterfaceFileUnreadable;
    advancedstock::AdvancedStockDialog dialog{.bundle = bundle, .window = *window, .context = context, .stock = stock};
    SyncToUI(dialog);
    const EventHandler hits = InstallEventHandler(*window, [&](const HitEvent& hit) { return HandleHit(dialog, hit); });
    result = RunModalDialog(bundle, *window, {});
    if (result != ModalResult::OK)
        return noErr;
    if (const QLineEdit* description = dialog.description())
        dialog.stock.setDescription(description->text().left(kMostDescriptionLength));
    stock = dialog.stock;
    return noErr;
}

} // namespace kesta
