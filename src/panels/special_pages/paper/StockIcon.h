#pragma once

#include "platform/values/Types.h"

#include <QStringList>

namespace kesta {

class Stock;

// File names of the pictures that show the paper, drawn over each other from the first on; empty without a stock.
QStringList StockIconPictures(const Stock* stock);

// The word for a colour in the file names of pictures; "White" where there is no picture of that colour.
QString StockColorWord(SInt32 color);

} // namespace kesta
