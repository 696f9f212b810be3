#pragma once

#include "panels/booklet_watermark/watermark/WatermarkData.h"

#include <QStringList>

#include <optional>

namespace kesta::booklet_watermark {

// Watermarks and the fonts made for them, kept between jobs; docs/watermark-store.md has the file's form. Functions
// take the file's plain name first. Each change reads the file and, when that makes a difference, writes it whole: save
// a watermark first, the list of names second. Nobody is told of a failed write but by the message on standard error,
// and the file is then as it was.
inline constexpr char kWatermarkFile[] = "com.kesta.printing.watermarks.plist";

// Under which a file has the list; no watermark's name.
inline constexpr char kWatermarkListKey[] = "WatermarkListEntries";

// What shows names to the user.
class WatermarkListBrowser {
public:
    virtual ~WatermarkListBrowser() = default;
    virtual void setItems(const QStringList& names) = 0;
};

// The names in the order of the menu, also to the browser when there is one; nothing when the file has no list, and the
// browser then keeps its items. An entry that is no text is left out.
std::optional<QStringList> loadWatermarkList(QAnyStringView file, WatermarkListBrowser* browser = nullptr);

// Does nothing without a file or a list.
void saveWatermarkList(QAnyStringView file, const std::optional<QStringList>& list);

// True when the file has a watermark of that name: what it has goes into the record (ReadWatermark says how), the rest
// of the record stays, and a text that is not empty makes it a text watermark. Otherwise the record is made all zero.
bool loadWatermarkData(QAnyStringView file, QAnyStringView name, _WatermarkData& record);

// Replaces whatever stands under the record's name.
void saveWatermarkData(QAnyStringView file, const _WatermarkData& record);

// Removes the watermark and the first entry of the list that equals the name exactly, case included. A list or a font
// under that name stays.
void removeWatermarkData(QAnyStringView file, QAnyStringView name);

// A font program under its key; does nothing when the file can't be read.
void storeFontData(QAnyStringView file, QAnyStringView key, const QByteArray& data);

// Appends the font program; nothing when there is none.
void loadFontData(QAnyStringView file, QAnyStringView key, QByteArray& buffer);

} // namespace kesta::booklet_watermark
