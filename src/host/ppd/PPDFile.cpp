#include "host/ppd/PPDFile.h"

#include "platform/printsystem/PPDFileCheck.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace kesta::host {

PPDFile OpenPPDFile(const QString& path)
{
    if (const std::optional<QString> problem = PPDFileProblem(path))
        return {{}, *problem};
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
