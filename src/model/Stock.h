#pragma once

#include "pde/ticket/JobContext.h"
#include "platform/values/Value.h"

namespace kesta {

// What the fields of a stock hold, as far as the code asks; sizes, kinds and colours are the ticket values of the PPD's
// choices.
enum StockSize : SInt32 { kStockSizeA4 = 4, kStockSizeCustom = 75, kStockSizeLetter = 204 };
enum StockType : SInt32 {
    kStockTypeStandard = 1,
    kStockTypeTransparency = 2,
    kStockTypePrePrinted = 3,
    kStockTypePrecutTab = 4, // with a modulus
    kStockTypeFullCutTab = 5,
    kStockTypeOrdered = 6, // with a text and a modulus
    kStockTypeText = 7,    // with a text
    kStockTypeEnvelopes = 8,
    kStockTypeLabels = 9,
    kStockTypeRecycled = 10,
    kStockTypePunched = 11,
    kStockTypeCard = 12,
    kStockTypeBond = 13,
    kStockTypeLetterhead = 14,
    kStockTypeCustom1 = 15, // and so on
    kStockTypeCustom7 = 21,
    kStockTypeOther = 22,
    kStockTypeSystemDefault = 23,
    kStockTypeTabStock = 24, // may have a modulus
    kStockTypeHeavyLabels = 25,
    kStockTypeCardReloaded = 26,
    kStockTypeExtraHeavy = 27,
    kStockTypeExtraHeavyReloaded = 28,
    kStockTypeLightGloss = 29,
    kStockTypeLightGlossReloaded = 30,
    kStockTypeHeavyGloss = 31,
    kStockTypeHeavyGlossReloaded = 32,
    kStockTypeHeavyTabStock = 33, // may have a modulus
    kStockTypeUnspecified = 34,
    kStockTypeExtraHeavyPlus = 35,
    kStockTypeExtraHeavyPlusReloaded = 36,
    kStockTypeExtraHeavyGloss = 37,
    kStockTypeExtraHeavyGlossReloaded = 38,
    kStockTypeExtraHeavyLabels = 39,
    kStockTypeRough = 40,
    kStockTypeArchival = 45,
};
enum StockColor : SInt32 {
    kStockColorWhite = 1,
    kStockColorBlue = 2,
    kStockColorYellow = 3,
    kStockColorGreen = 4,
    kStockColorPink = 5,
    kStockColorClear = 6,
    kStockColorBuff = 7,
    kStockColorGoldenrod = 8,
    kStockColorRed = 9,
    kStockColorText = 10, // with a text
    kStockColorIvory = 11,
    kStockColorGray = 12,
    kStockColorOrange = 13,
    kStockColorUnspecified = 22,
    kStockColorPrinterDefault = 23,
};
enum StockPunched : SInt32 { kStockNotPunched = 1, kStockPunched = 2 };
enum StockSource : SInt32 { kStockSourcePostPrintInserter = 10 };

// kUnset and empty texts mean not set.
struct StockFields {
    SInt32 size = kUnset;
    SInt32 width = kUnset; // width and length in hundredths of a millimetre, of a custom size only
    SInt32 length = kUnset;
    SInt32 type = kUnset;
    QString customType = {};
    SInt32 color = kStockColorWhite;
    QString customColor = {};
    SInt32 modulus = kUnset; // sheets in a sequence of tabs
    SInt32 punched = kUnset;
    SInt32 weight = kUnset;
    QString description = {};
    SInt32 sidesCoated = kUnset;
    SInt32 coatingType = kUnset;
    SInt32 finish = kUnset;
    SInt32 grain = kUnset;
    QString customName = {};
    bool customNameOnly = false;
    QString comment = {};
    SInt32 source = kUnset;
};

// The paper of the job or of a special page.
class Stock {
public:
    Stock() = default;
    explicit Stock(const Dictionary& ticket); // every field unset, the colour too, then fromTicket
    Stock(const Stock& other);                // a copy of inconsistent fields is made consistent as the setters would
    Stock& operator=(const Stock& other);
    virtual ~Stock() = default;

    SInt32 size() const { return fields_.size; }
    SInt32 width() const { return fields_.width; }
    SInt32 length() const { return fields_.length; }
    SInt32 type() const { return fields_.type; }
    const QString& customType() const { return fields_.customType; }
    SInt32 color() const { return fields_.color; }
    const QString& customColor() const { return fields_.customColor; }
    SInt32 modulus() const { return fields_.modulus; }
    SInt32 punched() const { return fields_.punched; }
    SInt32 weight() const { return fields_.weight; }
    const QString& description() const { return fields_.description; }
    SInt32 sidesCoated() const { return fields_.sidesCoated; }
    SInt32 coatingType() const { return fields_.coatingType; }
    SInt32 finish() const { return fields_.finish; }
    SInt32 grain() const { return fields_.grain; }
    const QString& customName() const { return fields_.customName; }
    bool customNameOnly() const { return fields_.customNameOnly; }
    const QString& comment() const { return fields_.comment; }
    SInt32 source() const { return fields_.source; }

    void setSize(SInt32 size);     // a size other than custom clears width and length
    void setWidth(SInt32 width);   // a set width makes the size custom
    void setLength(SInt32 length); // a set length makes the size custom
    void setType(SInt32 type);     // a transparency is clear
    void setCustomType(const QString& type) { fields_.customType = type; }
    void setColor(SInt32 color) { fields_.color = color; }
    void setCustomColor(const QString& color) { fields_.customColor = color; }
    void setModulus(SInt32 modulus) { fields_.modulus = modulus; }
    void setPunched(SInt32 punched) { fields_.punched = punched; }
    void setWeight(SInt32 weight) { fields_.weight = weight; }
    void setDescription(const QString& description) { fields_.description = description; }
    void setSidesCoated(SInt32 sides) { fields_.sidesCoated = sides; }
    void setCoatingType(SInt32 type) { fields_.coatingType = type; }
    void setFinish(SInt32 finish) { fields_.finish = finish; }
    void setGrain(SInt32 grain) { fields_.grain = grain; }
    void setCustomName(const QString& name) { fields_.customName = name; }
    void setCustomNameOnly(bool only) { fields_.customNameOnly = only; }
    void setComment(const QString& comment) { fields_.comment = comment; }
    void setSource(SInt32 source) { fields_.source = source; }

    Dictionary asTicket() const;
    void fromTicket(const Dictionary& ticket); // as it is; a missing key leaves its field as it was

    bool operator==(const Stock& other) const; // texts regardless of case

private:
    StockFields fields_;
};

// Makes the stock what a fresh job (Letter, white, standard) or special page (size, colour and type unset) begins with.
// Source, coating type, finish, grain and comment stay as they were.
void DefaultStock(Stock& stock, JobContext context);

} // namespace kesta
