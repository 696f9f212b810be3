#pragma once

#include "panels/special_pages/SpecialPageSet.h"

namespace kesta {
struct Bundle;
}

namespace kesta::special_pages {

enum class Column { Pages, Type, Attributes };
inline constexpr int kColumnCount = 3;
inline constexpr OSStatus kNoSuchColumn = -4979;

// Of the pages of one job, as a list shows them.
class PageTexts {
public:
    // Without print settings there is no job to say what covers can be.
    PageTexts(const Bundle& bundle, const SpecialPageSet& set, const Ticket* settings)
        : bundle_(bundle), set_(set), settings_(settings)
    {
    }

    OSStatus cell(const SpecialPage& page, int column, QString& text) const;
    // "row 3 of 7, pages 3 to 7, exception, one-sided; yellow"
    QString spoken(const SpecialPage& page, int row, int count) const;

    // What a window says of all pages: covers, inserts, exceptions.
    QStringList phrases() const;

private:
    QString pages(const SpecialPage& page) const;
    QString spokenPages(const SpecialPage& page) const;
    QString type(const SpecialPage& page) const;
    QString exceptionPhrase(const ExceptionPage& exception) const;

    const Bundle& bundle_;
    const SpecialPageSet& set_;
    const Ticket* settings_;
};

// What is special about the page, its parts joined by semicolons; a part whose text can't be had is left out.
QString CopySpecialPageSummary(const Bundle& bundle, const SpecialPage& page, const Ticket* settings);

} // namespace kesta::special_pages
