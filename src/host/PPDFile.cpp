#include "host/PPDFile.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

constexpr qint64 kLargestPPD = 8 * 1024 * 1024; // bytes
constexpr qsizetype kMostOptions = 4000;

std::optional<QString> Unfit(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return u"unable to access \"%1\" - %2"_s.arg(path, file.errorString());
    if (file.isSequential() || file.size() > kLargestPPD)
        return u"\"%1\" is no printer description: it is not a file of at most %2 MB"_s.arg(path).arg(kLargestPPD >>
                                                                                                      20);
    const QByteArray text = file.readAll();
    if (!text.startsWith("*PPD-Adobe"))
        return u"\"%1\" is no printer description: it does not begin with *PPD-Adobe"_s.arg(path);
    return text.count("OpenUI") > kMostOptions
               ? std::optional(u"\"%1\" has more than %2 options"_s.arg(path).arg(kMostOptions))
               : std::nullopt;
}

} // namespace

PPDFile OpenPPDFile(const QString& path)
{
    if (auto unfit = Unfit(path))
        return {{}, *unfit};
    PPDFile file;
    file.ppd.reset(ppdOpenFile(QFile::encodeName(path).constData()));
    if (file.ppd) {
        ppdMarkDefaults(file.ppd.get());
        return file;
    }
    int line = 0;
    const ppd_status_t status = ppdLastError(&line);
    file.problem =
        u"\"%1\" can't be read, line %2: %3"_s.arg(path).arg(line).arg(QString::fromUtf8(ppdErrorString(status)));
    return file;
}

} // namespace kesta::host
