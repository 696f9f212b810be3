#pragma once

#include "host/FakePlugIn.h"
#include "host/Words.h"
#include "host/commandline/DialogCaller.h"
#include "host/dialog/PrintDialog.h"
#include "platform/system/SafeFile.h"
#include "support/TestTexts.h"
#include "toolkit/windows/ToolkitServices.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace kesta::host::test {

using namespace Qt::StringLiterals;

class PrintDialogTest : public testing::Test {
protected:
    PrintDialogTest()
    {
        InstallToolkitServices();
        qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
        options.ppdPath = QStringLiteral(KESTA_PPD);
        options.saveSettingsPath = folder.filePath(u"saved.plist"_s);
    }

    // The exit status of the program with the script played in the dialog; the script's fault goes to `fault`.
    int run(const QByteArray& script)
    {
        auto [request, why] = DialogRequest(options, PrintBundle());
        PrintDialog dialog({.request = std::move(request),
                            .texts = &PrintBundle(),
                            .plugIn = {plugIn, Verbatim(u"The plug-in is missing."_s)},
                            .send = hasSender ? DialogSender(options, PrintBundle()) : SendFunction(),
                            .scripted = scripted});
        problem = OnConsole(why.isEmpty() ? dialog.prepare().value_or(Message()) : why);
        if (!problem.isEmpty())
            return 1;
        const DialogScript parsed = ParseDialogScript(script);
        EXPECT_EQ(parsed.error, QString());
        const ScriptPlayer player(parsed, dialog, [](const QString& key) {
            const QString text = LocalizedString(PrintBundle(), key);
            return text == QLatin1StringView(kStringNotFound) ? QStringList() : QStringList{text};
        });
        outcome = dialog.run();
        fault = player.fault().value_or(QString());
        return ExitStatus(outcome.end, true);
    }

    QString calls() const { return fake.calls.join(u", "_s); }

    // What Print saved.
    void readSaved(JobTickets& tickets) const
    {
        const FileContent content = ReadFile(options.saveSettingsPath, 1 << 20);
        ASSERT_TRUE(content.bytes) << content.error.text.toStdString();
        ASSERT_FALSE(ReadJobSettings(*content.bytes, tickets));
    }

    // Job settings to start from, with these choices of the printer's options.
    void startFrom(const Dictionary& choices)
    {
        JobTickets tickets;
        tickets.printSettings.ppdDict() = choices;
        options.settingsPath = folder.filePath(u"start.plist"_s);
        ASSERT_FALSE(WriteFile(options.settingsPath, WriteJobSettings(tickets)));
    }

    QTemporaryDir folder;
    FakePlugIn fake;
    std::optional<PlugIn> plugIn = FakePlugIn::door();
    CommandLine options;
    bool scripted = true;
    bool hasSender = true;
    DialogOutcome outcome;
    QString problem;
    QString fault;
};

} // namespace kesta::host::test
