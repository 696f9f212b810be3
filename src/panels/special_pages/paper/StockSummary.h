#pragma once

#include "model/Stock.h"
#include "printer/PPDUtilities.h"
#include "toolkit/controls/Menu.h"

namespace kesta {

struct Bundle;

// The paper's size, colour and kind in words, set or not; nothing where no text can be had.
std::optional<QString> StockSizeText(const Stock& stock);
std::optional<QString> StockColorText(const Stock& stock);
std::optional<QString> StockTypeText(const Bundle& bundle, const Stock& stock);

// For a menu of the option's choices: what the paper has of it, where this printer does not offer that. Nothing where
// the summary does not tell of the option.
std::optional<MenuItem> StockItemNotOffered(const Bundle& bundle, JobContext context, const Stock& stock,
                                            PPDKeyword option, const Menu& menu);

// The post-print inserter in words; where none is fitted, it says so.
QString StockInserterText(const Bundle& bundle);

// The paper in words, its parts joined by the separator; a part whose text can't be had is left out. Job summaries
// never name a size, and name colour and type even when these are unset. Of paper from a tray of its own only the
// post-print inserter is named.
QString GenerateStockSummary(const Bundle& bundle, JobContext context, const Stock& stock, const QString& separator);

// The same, a part a line, as a view shows it: empty without a stock, and a word for "nothing chosen" where the summary
// is empty.
QString StockSummaryText(const Bundle& bundle, const Stock* stock, JobContext context);

} // namespace kesta
