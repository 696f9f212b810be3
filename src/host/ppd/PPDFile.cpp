#include "host/ppd/PPDFile.h"

#include "platform/printsystem/PPDFileCheck.h"

#include <QFile>

namespace kesta::host {

PPDFile OpenPPDFile(const QString& path)
{
    if (const std::optional<Message> problem = PPDFileProblem(path))
        return {{}, *problem};
    PPDFile file;
    file.ppd.reset(ppdOpenFile(QFile::encodeName(path).constData()));
    if (file.ppd) {
        ppdMarkDefaults(file.ppd.get());
        return file;
    }
    int line = 0;
    const ppd_status_t status = ppdLastError(&line);
    file.problem = Say("PPD Refused", path, line, QString::fromUtf8(ppdErrorString(status)));
    return file;
}

} // namespace kesta::host
