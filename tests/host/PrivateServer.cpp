#include "host/PrivateServer.h"

#include "host/FileContent.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QStringList>
#include <QThread>

#include <cups/cups.h>

#include <csignal>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kesta::test {
namespace {

constexpr char kScript[] = PRIVATE_CUPS;

bool RunScript(const QStringList& arguments)
{
    // With files for its output: the server it leaves behind would hold a pipe open.
    QProcess script;
    script.setStandardOutputFile(QProcess::nullDevice());
    script.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    script.start(QLatin1StringView(kScript), arguments);
    return script.waitForFinished(30'000) && script.exitCode() == 0;
}

} // namespace

PrivateServer::PrivateServer()
{
    // The server's own user looks into it.
    QFile::setPermissions(directory_.path(), QFile::permissions(directory_.path()) | QFile::ExeGroup | QFile::ExeOther |
                                                 QFile::ReadGroup | QFile::ReadOther);
    restart();
}

PrivateServer::~PrivateServer()
{
    signal(SIGKILL); // quicker, and nobody needs what it would save
    stop();
}

void PrivateServer::restart()
{
    stop();
    if (!RunScript({u"start"_s, folder(), u"Kesta=%1"_s.arg(QLatin1StringView(KESTA_PPD)), u"Plain="_s}))
        throw std::runtime_error("the private print server does not start");
    pid_ = Content(folder() + u"/pid"_s).trimmed().toLongLong();
}

void PrivateServer::stop()
{
    RunScript({u"stop"_s, folder()});
}

void PrivateServer::signal(int number) const
{
    ::kill(static_cast<pid_t>(pid_), number);
}

QByteArray PrivateServer::content(int job, const char* suffix) const
{
    return Content(u"%1/jobs/%2.%3"_s.arg(folder()).arg(job).arg(QLatin1StringView(suffix)));
}

bool PrivateServer::hasJob(int number) const
{
    return QFile::exists(u"%1/jobs/%2.done"_s.arg(folder()).arg(number));
}

std::optional<CapturedJob> PrivateServer::job(int number) const
{
    for (QDeadlineTimer deadline(10'000); !deadline.hasExpired(); QThread::msleep(10)) {
        if (hasJob(number))
            return CapturedJob{content(number, "options"), content(number, "argv"), content(number, "data")};
    }
    return std::nullopt;
}

int PrivateServer::jobState(int number) const
{
    http_t* http =
        httpConnect2(address().toUtf8().constData(), 631, nullptr, AF_UNSPEC, HTTP_ENCRYPTION_NEVER, 1, 5000, nullptr);
    cups_job_t* jobs = nullptr;
    const int count = cupsGetJobs2(http, &jobs, nullptr, 0, CUPS_WHICHJOBS_ALL);
    int state = 0;
    for (int i = 0; i < count; ++i) {
        if (jobs[i].id == number)
            state = jobs[i].state;
    }
    cupsFreeJobs(count, jobs);
    httpClose(http);
    return state;
}

QByteArray PrivateServer::shownOf(int job) const
{
    http_t* http =
        httpConnect2(address().toUtf8().constData(), 631, nullptr, AF_UNSPEC, HTTP_ENCRYPTION_NEVER, 1, 5000, nullptr);
    ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const QByteArray uri = "ipp://localhost/jobs/" + QByteArray::number(job);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, "somebody");
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, "all");
    ipp_t* answer = cupsDoRequest(http, request, "/jobs/");
    QByteArray shown;
    for (ipp_attribute_t* item = ippFirstAttribute(answer); item; item = ippNextAttribute(answer)) {
        QByteArray value(qsizetype(ippAttributeString(item, nullptr, 0)) + 1, '\0');
        ippAttributeString(item, value.data(), size_t(value.size()));
        shown += QByteArray(ippGetName(item)) + '=' + value.chopped(1) + '\n';
    }
    ippDelete(answer);
    httpClose(http);
    return shown;
}

void PrivateServer::describe(const QByteArray& lines) const
{
    const QString path = directory_.filePath(u"described.ppd"_s);
    QFile ppd(path);
    if (!ppd.open(QIODevice::WriteOnly) || ppd.write(Content(QStringLiteral(KESTA_PPD)) + lines) < 0)
        throw std::runtime_error("the printer's description can't be written");
    ppd.close();
    administer(u"lpadmin"_s, {u"-p"_s, u"Kesta"_s, u"-P"_s, path});
}

void PrivateServer::administer(const QString& program, const QStringList& arguments) const
{
    if (QProcess::execute(program, QStringList{u"-h"_s, address()} + arguments) != 0)
        throw std::runtime_error("the private print server can't be administered");
}

} // namespace kesta::test
