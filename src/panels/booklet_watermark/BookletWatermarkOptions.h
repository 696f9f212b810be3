#pragma once

#include "panels/booklet_watermark/WatermarkMenu.h"
#include "panels/booklet_watermark/booklet/BookletRules.h"
#include "panels/booklet_watermark/watermark/WatermarkFont.h"

#include <QSizeF>

#include <functional>

namespace kesta::booklet_watermark {

inline constexpr auto EnabledDisabledMap = std::to_array<SettingRow>({
    {"Enabled", kBookletLayoutOn},
    {"Disabled", kBookletLayoutOff},
});
inline constexpr auto PageBordersMap = std::to_array<SettingRow>({
    {"No Page Borders", kNoPageBorders},
    {"Draw Page Borders", kDrawPageBorders},
});
static_assert(EnabledDisabledMap.size() == 2);
static_assert(PageBordersMap.size() == 2);

// What the panel edits, as ticket values.
struct BookletWatermarkOptions {
    Booklet booklet{.fold = 0}; // 0 where the printer folds no booklets: its option then stays as it is
    BookletLock lock;
    bool wasOn = false; // the ticket has, or had, the booklet and what it forces
    bool foldsBooklets = false;
    WatermarkChoice watermark;
    QString subsetFontName; // of the font program that the store has for a text watermark
    FontProblem fontProblem = FontProblem::None;

    bool operator==(const BookletWatermarkOptions&) const = default;
};

// The two-sided choice that a booklet has forced another one upon, for the whole process; 0 for none.
SInt32& previousSelection();

// The names are those of the store, in the order of its list. The PPD may be null.
void ReadTicket(BookletWatermarkOptions& options, const Ticket& settings, ppd_file_t* ppd, const QStringList& names);

// Makes the font program of a watermark of that name; see convertFont.
using MakeFont = std::function<ConvertedFont(const QString& name)>;

// What other panels ask the ticket for is there as soon as the user has changed it.
void WriteBookletAtOnce(BookletWatermarkOptions& options, Ticket& settings);

enum class BookletScope { Left, Written };
void WriteTicket(BookletWatermarkOptions& options, Ticket& settings, ppd_file_t* ppd, const QStringList& names,
                 BookletScope scope, const MakeFont& makeFont);

// Of the whole paper, turned as the job is, in points; of letter size when the ticket has none.
QSizeF ReadPageSize(const Ticket& pageFormat);

} // namespace kesta::booklet_watermark
