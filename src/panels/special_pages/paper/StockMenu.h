#pragma once

#include "panels/special_pages/paper/StockMenuRules.h"
#include "panels/special_pages/paper/StockSummary.h"
#include "toolkit/controls/ControlEvent.h"

#include <functional>
#include <vector>

namespace kesta {

class MenuButton;
class MenuControl;
class PictureView;
class PopupButton;

// What a paper menu button works on. Its owner keeps it alive, in one place, until the button is finalized, and may
// exchange stock and views at any time; views that are gone count as none.
struct _StockMenuCommandEventHandlerData {
    const Bundle* bundle = nullptr;
    Stock* stock = nullptr; // borrowed
    JobContext context = JobContext::Job;
    std::function<QString()> summary = {}; // what the summary says, where that is not StockSummaryText
    QPointer<QWidget> summaryView = {};
    QPointer<PictureView> iconView = {};
    QPointer<MenuControl> button = {};       // whose menu it is; set by Initialize...
    std::vector<EventHandler> handlers = {}; // set by Initialize..., disposed of by Finalize...
};

// Fill the button's menu and make its commands change the stock and refresh the views; nothing without button or
// bundle. The menu may be changed afterwards. The commands go on to the handlers around the button once the stock has
// changed, so that an owner can follow: on "Styp", look at stock->type().
void InitializeStockMenuButton(MenuButton* button, _StockMenuCommandEventHandlerData& data);
void FinalizeStockMenuButton(_StockMenuCommandEventHandlerData& data);

// The same for a pop-up that holds the size menu alone. Which item it shows is the owner's.
void InitializeStockSizeMenuButton(PopupButton* popup, _StockMenuCommandEventHandlerData& data);
void FinalizeStockSizeMenuButton(_StockMenuCommandEventHandlerData& data);

// Applies a command of the paper menu, asking for a custom size or the advanced paper in a dialog of its own; answers
// NotHandled, as to every other command.
EventResult StockMenuCommandEventHandler(_StockMenuCommandEventHandlerData& data, const CommandEvent& event);
// Makes the view show the paper as it is when it is drawn.
EventResult StockIconEventHandler(_StockMenuCommandEventHandlerData& data, const DrawEvent& event);

// Enables or disables what the button's menu has of that command, a submenu as a whole.
void EnableStockMenuCommand(const _StockMenuCommandEventHandlerData& data, FourCharCode command, bool enabled);

// Shows what StockSummaryText says; kMissingArgument without a view.
OSStatus ShowStockSummary(const Bundle& bundle, QWidget* view, const Stock* stock, JobContext context);

// Shows the stock in both views: for an owner that has changed it. What the button changes is its description for those
// who can't see the summary.
void ShowStock(const _StockMenuCommandEventHandlerData& data);

} // namespace kesta
