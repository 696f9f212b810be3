// Printer descriptions of all kinds in the program: what is offered, and what the user reads where less is.

#include "host/ProgramFixture.h"
#include "support/PPDVariant.h"

#include <QFile>

#include <array>
#include <linux/capability.h>
#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

using kesta::test::Ended;
using kesta::test::PPDVariant;
using kesta::test::ProgramTest;

class ProgramPrintersTest : public ProgramTest {
protected:
    // The plain options work and are saved; the reason why there is no pane is in the window.
    void expectPlainOptions(const QString& ppd, const QByteArray& reason) const
    {
        const QByteArray script = "expect \"Plain Options Title\"\nexpect \"" + reason +
                                  "\"\nexpect \"You can still save\"\nexpect-enabled Help no\ntype Copies 3\nprint";
        const Ended ended = playFor(ppd, script, {u"--save-settings"_s, u"plain.plist"_s});
        EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
        QFile saved(folder.filePath(u"plain.plist"_s));
        ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
        EXPECT_TRUE(saved.readAll().contains("<key>com.apple.print.PrintSettings.PMCopies</key>"))
            << reason.constData();
        ASSERT_TRUE(saved.remove());
    }

    void expectPlays(const PPDVariant& ppd, const QByteArray& script) const
    {
        const Ended ended = playFor(ppd.path(), script);
        EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
    }
};

TEST_F(ProgramPrintersTest, OtherMakersKeepThePlainOptions)
{
    for (const QByteArray maker : {"Otherco", "Kesta Inc", "KESTA"}) {
        PPDVariant ppd;
        ppd.replaceLines("*Manufacturer:", "*Manufacturer: \"" + maker + '"');
        expectPlainOptions(ppd.path(), "has “" + maker + "” as its maker");
    }
}

TEST_F(ProgramPrintersTest, WhatIsNoDescriptionSaysWhy)
{
    expectPlainOptions(folder.filePath(u"missing.ppd"_s), "there is no such file");
    expectPlainOptions(folder.path(), "it is not a file");
    PPDVariant ppd;
    expectPlainOptions(ppd.truncate(0).path(), "it does not begin as a printer description does");

    const PPDVariant whole;
    for (const char* place : {"*CloseUI: *Jog", "*CloseGroup: InstallableOptions"}) {
        PPDVariant cut;
        cut.truncate(whole.content().indexOf(place));
        expectPlainOptions(cut.path(), "it breaks off in the middle");
    }
}

TEST_F(ProgramPrintersTest, AFileThatMayNotBeReadSaysSo)
{
    const QString ppd = folder.filePath(u"secret.ppd"_s);
    ASSERT_TRUE(QFile::copy(QStringLiteral(KESTA_PPD), ppd));
    ASSERT_TRUE(QFile::setPermissions(ppd, {}));
    prepare = [] { // without the superuser's right to read everything, where the tests have it
        prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
        prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH);
    };
    const Ended ended = playFor(ppd, "expect \"Plain Options Title\"\nexpect \"it can’t be read\"\ncancel");
    EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
    EXPECT_EQ(run({u"--ppd"_s, ppd, u"--list-options"_s}).status, 1);
}

TEST_F(ProgramPrintersTest, ThePaneTakesWhatTheDescriptionHas)
{
    PPDVariant withoutGroup;
    expectPlays(withoutGroup.removeGroup("InstallableOptions"),
                "panel Advanced\nchoose \"Mirrored Output:\" Enabled\nexpect-enabled Help yes\npress \"About...\"\nkey "
                "Escape\nprint");
    PPDVariant withoutOffset;
    expectPlays(withoutOffset.removeOption("Jog"), "panel Advanced\nchoose \"Mirrored Output:\" Enabled\nprint");
}

TEST_F(ProgramPrintersTest, MenusFollowTheFittedFinisher)
{
    PPDVariant ppd;
    expectPlays(ppd.setDefault("Option2", "OCT"), "panel Advanced\nchoose \"Request Offset:\" #2\nprint");
    const Ended simple = playFor(ppd.setDefault("Option2", "None").path(),
                                 "panel Advanced\nexpect \"Mirrored Output:\"\nexpect \"Request Offset:\"");
    EXPECT_EQ(simple.status, 1);
    EXPECT_TRUE(simple.errors.contains(u"script line 3: "_s)) << simple.errors.toStdString();
}

TEST_F(ProgramPrintersTest, TextsReadInTheEncodingOfTheDescription)
{
    struct Case {
        const char* declared;
        QByteArray bytes;
        QByteArray shown;
    };
    const std::array cases{
        Case{"ISOLatin2", "\xA9\xED\xF8ka", "Šířka"},
        Case{"JIS83-RKSJ", "\x97\x70\x8E\x86\x83\x5C", "用紙ソ"},
    };
    for (const auto& [declared, bytes, shown] : cases) {
        PPDVariant ppd;
        ppd.replaceLines("*LanguageEncoding:", QByteArray("*LanguageEncoding: ") + declared);
        expectPlays(ppd.setChoiceText("Jog", "None", bytes),
                    "panel Advanced\nchoose \"Request Offset:\" #2\nchoose \"Request Offset:\" \"" + shown +
                        "\"\nexpect-value \"Request Offset:\" #1\ncancel");
    }
}

} // namespace
