#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

#include <functional>

namespace kesta::test {

struct Ended {
    int status = -1;
    QString output;
    QString errors;
};

class ProgramTest : public testing::Test {
protected:
    ProgramTest()
    {
        for (const char* screen : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QLatin1StringView(screen));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.path());
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    }

    // Does something beside the program once it was started.
    Ended run(const QStringList& arguments, const QByteArray& input = {},
              const std::function<void()>& beside = {}) const
    {
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(folder.path());
        if (prepare)
            program.setChildProcessModifier(prepare);
        program.start(QStringLiteral(KESTA_PRINT), arguments);
        program.write(input);
        program.closeWriteChannel();
        program.waitForStarted(30'000);
        program.waitForBytesWritten(30'000);
        if (beside)
            beside();
        const bool ended = program.waitForFinished(30'000) && program.exitStatus() == QProcess::NormalExit;
        return {.status = ended ? program.exitCode() : -1,
                .output = QString::fromUtf8(program.readAllStandardOutput()),
                .errors = QString::fromUtf8(program.readAllStandardError())};
    }

    // Of a script for the product's printer without a queue.
    Ended play(const QByteArray& script, const QStringList& more = {}) const
    {
        return playFor(QStringLiteral(KESTA_PPD), script, more);
    }
    Ended playFor(const QString& ppd, const QByteArray& script, const QStringList& more = {}) const
    {
        return run(QStringList{QStringLiteral("--ppd"), ppd, QStringLiteral("--script"), QStringLiteral("-")} + more,
                   script);
    }

    QTemporaryDir folder;
    std::function<void()> prepare = {}; // runs in the child before the program starts
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

} // namespace kesta::test
