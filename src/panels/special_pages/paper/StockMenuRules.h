#pragma once

#include "model/Stock.h"
#include "printer/PPDUtilities.h"
#include "toolkit/controls/Menu.h"

namespace kesta {

struct Bundle;

// The commands of paper menus; an item's value goes with it.
inline constexpr FourCharCode kStockSizeCommand = "Ssiz"_code;
inline constexpr FourCharCode kStockColorCommand = "Sclr"_code;
inline constexpr FourCharCode kStockTypeCommand = "Styp"_code;
inline constexpr FourCharCode kStockSourceCommand = "Ssrc"_code;
inline constexpr FourCharCode kStockDefaultsCommand = "Sdef"_code; // in no menu of this product
inline constexpr FourCharCode kStockAdvancedCommand = "Sadv"_code; // in no menu of this product

// Each refills the menu with the current PPD's choices. Those of special pages begin with an item for the job's own
// setting, of value kUnset.
void PopulateChoices(Menu& menu, const Bundle& bundle, PPDKeyword keyword, FourCharCode command, JobContext context);
void PopulateStockSizeMenu(Menu& menu, const Bundle& bundle, JobContext context);
void PopulateStockTypeMenu(Menu& menu, const Bundle& bundle, JobContext context);
void PopulateStockColorMenu(Menu& menu, const Bundle& bundle, JobContext context);

// The whole paper menu, with the three above as submenus. A submenu without choices can't be opened.
void PopulateStockMenu(Menu& menu, const Bundle& bundle, JobContext context);

// Enables or disables what has the command: of a submenu with that command its title alone, so that the items keep
// their own state.
void EnableStockCommand(Menu& menu, FourCharCode command, bool enabled);
// Marks what the stock has now of what the menu offers, without a stock nothing. Items of an owner's stay as they are.
void MarkStock(Menu& menu, const Stock* stock);
// Adds to the submenus of a whole paper menu what the stock has and the printer does not offer, in the place of what
// was added so before.
void AddNotOffered(Menu& menu, const Bundle& bundle, JobContext context, const Stock* stock);

// Does to the stock what a command does that asks no more of the user: every one but advanced and a custom size. False,
// and nothing done, for any other command.
bool ApplyStockCommand(Stock& stock, JobContext context, FourCharCode command, SInt32 value);

// What the commands that choose a size, colour or type do besides: paper chosen so has no tray and no name.
void ForgetStockName(Stock& stock);

} // namespace kesta
