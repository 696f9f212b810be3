#include "host/dialog/DialogSummary.h"

#include "host/job/PageRanges.h"
#include "platform/plugins/Bundle.h"
#include "platform/plugins/Sentence.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

QString CopiesAndPages(const HostSettings& settings, const Bundle& texts)
{
    QStringList facts;
    if (settings.copies > 1)
        facts << LocalizedCount(texts, "Copies Summary", settings.copies);
    if (!settings.pageRanges.isEmpty()) {
        const QString shown = WritePageRanges(ParsePageRanges(settings.pageRanges).ranges, u", "_s);
        facts << LocalizedString(texts, "Pages Summary").arg(shown);
    }
    return facts.join(u", "_s);
}

// The line begins as a sentence does, whichever phrase comes first.
QString Capitalized(const QString& line)
{
    return QLocale().toUpper(line.left(1)) + line.mid(1);
}

} // namespace

QString SummaryLine(const HostSettings& settings, const QStringList& panelPhrases, const Bundle& texts)
{
    QStringList phrases{CopiesAndPages(settings, texts)};
    if (settings.pagesPerSheet > 1)
        phrases << LocalizedCount(texts, "Per Sheet Summary", settings.pagesPerSheet);
    if (settings.orientation == Orientation::Landscape || settings.orientation == Orientation::ReverseLandscape)
        phrases << LocalizedString(texts, "Landscape Summary");
    phrases += panelPhrases;
    phrases.removeAll(QString());
    return phrases.isEmpty() ? LocalizedString(texts, "Default Summary") : Capitalized(phrases.join(u" \u00B7 "_s));
}

} // namespace kesta::host
