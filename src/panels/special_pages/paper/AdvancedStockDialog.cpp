#include "panels/special_pages/paper/AdvancedStockDialog.h"

#include "panels/special_pages/paper/CustomStockSizeDialog.h"
#include "panels/special_pages/paper/StockDescriptionSetup.h"
#include "panels/special_pages/paper/StockIcon.h"
#include "panels/special_pages/paper/StockMenuRules.h"
#include "panels/special_pages/paper/StockSummary.h"
#include "pde/forms/DialogCommands.h"
#include "pde/forms/TextFieldUtilities.h"
#include "pde/menus/MenuUtilities.h"
#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/windows/InterfaceFile.h"

#include <algorithm>

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

QString WordForUnset(const AdvancedStockDialog& dialog)
{
    return LocalizedString(dialog.bundle, dialog.context == JobContext::Job ? "PrinterDefault" : "UseJobSetting");
}

QString Name(const AdvancedStockDialog& dialog, SInt32 value, const std::optional<QString>& text)
{
    if (value == kUnset)
        return WordForUnset(dialog);
    return text ? *text : LocalizedFormat(dialog.bundle, "Unknown Setting", {QString::number(value)});
}

// A value that the menu lacks gets an item before all others, which can't be chosen anew: a pop-up does not show what
// the paper is not.
void ShowValue(const AdvancedStockDialog& dialog, Control number, Menu menu, SInt32 value,
               const std::optional<QString>& text)
{
    PopupButton* popup = dialog.popup(number);
    if (!popup)
        return;
    if (std::ranges::find(menu.items, value, &MenuItem::value) == menu.items.end())
        menu.items.insert(menu.items.begin(),
                          {.title = Name(dialog, value, text), .value = value, .enabled = value == kUnset});
    popup->setMenu(std::move(menu));
    SetPopupButtonToTicketValue(popup, value);
}

using PopulateFunction = void (*)(Menu&, const Bundle&, JobContext);

Menu MenuOf(const AdvancedStockDialog& dialog, PopulateFunction populate)
{
    Menu menu;
    populate(menu, dialog.bundle, dialog.context);
    return menu;
}

void PopulatePunchedMenu(Menu& menu, const Bundle& bundle, JobContext context)
{
    PopulateMenuFromMap(bundle, menu, _StockPunchedMap, context);
}

void ShowPaper(const AdvancedStockDialog& dialog)
{
    const Stock& stock = dialog.stock;
    ShowValue(dialog, kSizePopup, MenuOf(dialog, PopulateStockSizeMenu), stock.size(), StockSizeText(stock));
    ShowValue(dialog, kColorPopup, MenuOf(dialog, PopulateStockColorMenu), stock.color(), StockColorText(stock));
    ShowValue(dialog, kTypePopup, MenuOf(dialog, PopulateStockTypeMenu), stock.type(),
              StockTypeText(dialog.bundle, stock));
    ShowValue(dialog, kPunchedPopup, MenuOf(dialog, PopulatePunchedMenu), stock.punched(), {});
    if (auto* icon = FindControlAs<PictureView>(&dialog.window, {kSignature, kIcon}))
        icon->setPictures(StockIconPictures(&stock));
}

void SyncToUI(const AdvancedStockDialog& dialog)
{
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
