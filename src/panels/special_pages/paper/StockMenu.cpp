#include "panels/special_pages/paper/StockMenu.h"

#include "panels/special_pages/paper/AdvancedStockDialog.h"
#include "panels/special_pages/paper/CustomStockSizeDialog.h"
#include "panels/special_pages/paper/StockIcon.h"
#include "pde/forms/ViewUtilities.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/PopupButton.h"
#include "toolkit/windows/ModalLoop.h"

namespace kesta {
namespace {

// A cancelled dialog leaves the size, but the paper has lost its tray and name by then.
void ChooseCustomSize(const Bundle& bundle, Stock& stock)
{
    stock.setSource(kUnset);
    PaperSize size{stock.width(), stock.length()};
    ModalResult result = ModalResult::Cancel;
    if (RunModalCustomStockSizeDialog(bundle, result, size) == noErr && result == ModalResult::OK) {
        stock.setSize(kStockSizeCustom);
        stock.setWidth(size.width);
        stock.setLength(size.length);
    }
    ForgetStockName(stock);
}

void ChooseAdvanced(const Bundle& bundle, JobContext context, Stock& stock)
{
    ModalResult result = ModalResult::Cancel;
    if (RunModalAdvancedStockDialog(bundle, context, stock, result) == noErr && result == ModalResult::OK)
        ForgetStockName(stock);
}

void ShowStockIcon(PictureView* view, const Stock* stock)
{
    const QStringList pictures = StockIconPictures(stock);
    if (view && view->pictures() != pictures)
        view->setPictures(pictures);
}

void InstallHandlers(MenuControl& button, _StockMenuCommandEventHandlerData& data)
{
    data.button = &button;
    data.handlers.clear();
    data.handlers.push_back(InstallEventHandler(
        button, [&data](const CommandEvent& event) { return StockMenuCommandEventHandler(data, event); }));
    if (data.iconView) {
        ShowStockIcon(data.iconView, data.stock);
        data.handlers.push_back(InstallEventHandler(
            *data.iconView, [&data](const DrawEvent& event) { return StockIconEventHandler(data, event); }));
    }
}

void DisposeHandlers(_StockMenuCommandEventHandlerData& data)
{
    data.handlers.clear();
    data.button = nullptr;
}

} // namespace

OSStatus ShowStockSummary(const Bundle& bundle, QWidget* view, const Stock* stock, JobContext context)
{
    return view ? UpdateSummaryTextView(view, StockSummaryText(bundle, stock, context)) : kMissingArgument;
}

void ShowStock(const _StockMenuCommandEventHandlerData& data)
{
    ShowStockIcon(data.iconView, data.stock);
    if (!data.bundle)
        return;
    const QString text = data.summary ? data.summary() : StockSummaryText(*data.bundle, data.stock, data.context);
    if (data.summaryView)
        UpdateSummaryTextView(data.summaryView, text);
    if (data.button && data.summaryView)
        data.button->setAccessibleDescription(text);
    if (data.button)
        data.button->changeItems([&data](Menu& menu) { AddNotOffered(menu, *data.bundle, data.context, data.stock); });
}

void EnableStockMenuCommand(const _StockMenuCommandEventHandlerData& data, FourCharCode command, bool enabled)
{
    if (data.button)
        data.button->changeItems([=](Menu& menu) { EnableStockCommand(menu, command, enabled); });
}

EventResult StockMenuCommandEventHandler(_StockMenuCommandEventHandlerData& data, const CommandEvent& event)
{
    if (!data.stock || !data.bundle)
        return EventResult::NotHandled;
    if (event.command == kStockSizeCommand && event.ticketValue == kStockSizeCustom)
        ChooseCustomSize(*data.bundle, *data.stock);
    else if (event.command == kStockAdvancedCommand)
        ChooseAdvanced(*data.bundle, data.context, *data.stock);
    else if (!ApplyStockCommand(*data.stock, data.context, event.command, event.ticketValue))
        return EventResult::NotHandled;
    ShowStock(data);
    return EventResult::NotHandled;
}

EventResult StockIconEventHandler(_StockMenuCommandEventHandlerData& data, const DrawEvent&)
{
    ShowStockIcon(data.iconView, data.stock);
    return EventResult::NotHandled; // the view draws what it has been given
}

void InitializeStockMenuButton(MenuButton* button, _StockMenuCommandEventHandlerData& data)
{
    if (!button || !data.bundle)
        return;
    Menu menu;
    PopulateStockMenu(menu, *data.bundle, data.context);
    button->setMenu(std::move(menu));
    InstallHandlers(*button, data);
    data.handlers.push_back(InstallEventHandler(*button, [&data](const MenuEnableItemsEvent&) {
        data.button->changeItems([&data](Menu& shown) { MarkStock(shown, data.stock); });
        return EventResult::NotHandled;
    }));
}

void InitializeStockSizeMenuButton(PopupButton* popup, _StockMenuCommandEventHandlerData& data)
{
    if (!popup || !data.bundle)
        return;
    Menu menu;
    PopulateStockSizeMenu(menu, *data.bundle, data.context);
    popup->setMenu(std::move(menu));
    InstallHandlers(*popup, data);
}

void FinalizeStockMenuButton(_StockMenuCommandEventHandlerData& data)
{
    DisposeHandlers(data);
}

void FinalizeStockSizeMenuButton(_StockMenuCommandEventHandlerData& data)
{
    DisposeHandlers(data);
}

} // namespace kesta
