#include "host/job/MediaOption.h"

#include <QStringList>

#include <cups/cups.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

constexpr char kMediaOption[] = "media";

// "iso_a4_210x297mm" and "a4" are A4; empty when the printer has no such size.
QString SizeNamed(const QString& name, const PrinterFacts& printer)
{
    const auto sizes = printer.choices.find(QLatin1StringView(kPageSizeOption));
    if (sizes == printer.choices.end())
        return {};
    const auto same = [&](const QString& size) { return size.compare(name, Qt::CaseInsensitive) == 0; };
    if (const auto found = std::ranges::find_if(sizes->second, same); found != sizes->second.end())
        return *found;
    const pwg_media_t* media = pwgMediaForPWG(name.toUtf8().constData());
    const QString ppd = media && media->ppd ? QString::fromLatin1(media->ppd) : QString();
    return sizes->second.contains(ppd) ? ppd : QString();
}

// Of any printer; trays and kinds of paper are none.
bool IsSizeName(const QString& name)
{
    const QString trimmed = name.trimmed();
    const QByteArray utf8 = trimmed.toUtf8();
    const QByteArray ppd = (trimmed.left(1).toUpper() + trimmed.mid(1)).toUtf8(); // "a4" is read as "A4"
    return pwgMediaForPWG(utf8.constData()) || pwgMediaForPPD(ppd.constData()) || pwgMediaForLegacy(utf8.constData());
}

} // namespace

QString PageSizeOfMedia(const JobOptions& options, const PrinterFacts& printer)
{
    if (FindJobOption(options, kPageSizeOption))
        return {};
    const QString media = FindJobOption(options, kMediaOption).value_or(QString());
    for (const QString& name : media.split(u',')) {
        if (const QString size = SizeNamed(name.trimmed(), printer); !size.isEmpty())
            return size;
    }
    return {};
}

JobOptions WithPageSize(const JobOptions& options, const PrinterFacts& printer)
{
    JobOptions whole = options;
    if (const QString size = PageSizeOfMedia(options, printer); !size.isEmpty())
        SetJobOption(whole, kPageSizeOption, size);
    return whole;
}

bool IsPageSizeAlone(const JobOption& option, const PrinterFacts& printer)
{
    return !option.value.contains(u',') && !PageSizeOfMedia({option}, printer).isEmpty();
}

void AlignMedia(JobOptions& options)
{
    const std::optional<QString> media = FindJobOption(options, kMediaOption);
    if (!media || !FindJobOption(options, kPageSizeOption))
        return;
    QStringList rest = media->split(u',');
    rest.removeIf(IsSizeName);
    if (rest.isEmpty())
        RemoveJobOption(options, kMediaOption);
    else
        SetJobOption(options, kMediaOption, rest.join(u','));
}

} // namespace kesta::host
