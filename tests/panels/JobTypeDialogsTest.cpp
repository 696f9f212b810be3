#include "panels/paper_output/JobTypeSetups.h"

#include "pde/MenuUtilities.h"
#include "platform/Clock.h"
#include "platform/HelpViewer.h"
#include "platform/Notices.h"
#include "platform/RandomSource.h"
#include "platform/UserPreferences.h"
#include "support/TestTexts.h"
#include "support/User.h"
#include "toolkit/HistoryComboBox.h"
#include "toolkit/PictureView.h"
#include "toolkit/TextInput.h"
#include "toolkit/TypedValueHistory.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTimeEdit>

#include <cstring>
#include <string>
#include <utility>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

using namespace jobtypes;
using test::ModalUser;
using test::Press;

struct RecordingNotices : Notices {
    std::vector<Notice> shown;
    void show(const Notice& notice) override { shown.push_back(notice); }
    int ask(const Alert& alert) override { return CancelButtonOf(alert); }
};

struct RecordingHelp : HelpViewer {
    QString file;
    OSStatus show(const QString& shown, const QString&) override
    {
        file = shown;
        return noErr;
    }
};

// Every draw is the same number.
struct LoadedDice : RandomSource {
    void fill(std::span<std::byte> bytes) override
    {
        const std::uint32_t number = 9000 * 100 + 234;
        std::memcpy(bytes.data(), &number, std::min(bytes.size(), sizeof number));
    }
};
constexpr auto kMadePasscode = "1234";

struct StoppedClock : Clock {
    Date date{20'000 * 86'400 + 9 * 3600}; // nine o'clock
    Date now() const override { return date; }
    SInt64 milliseconds() const override { return 0; }
    int secondsEastOfUTC(Date) const override { return 0; }
};
constexpr SInt64 kToday = 2'082'844'800 + SInt64(20'000) * 86'400;

Bundle BundleOfDialogs()
{
    Bundle bundle = test::BundleWithTexts(
        {"OK Command", "Cancel Command", "Help Command", "SecurePrintSetupTitle", "SecurePrintHintText",
         "Passcode:", "ConfirmPasscode:", "Passcode Required Header", "Invalid Secure Print Passcode Header",
         "DelayedPrint", "TimeToPrint:", "Saved Job", "Save", "SavePrint", "Job Name:", "UseJobName",
         "Folder:", "PublicFolder", "SecureSavedJob:"});
    Dictionary& texts = *bundle.strings.dictionary("Localizable");
    texts.set("Min-Max Digits", "%1 to %2 digits");
    texts.set("Passcode Required Message", "%3, or %1 to %2 digits");
    texts.set("Invalid Secure Print Passcode Message", "%1 to %2 digits");
    bundle.info.set(kCFBundleHelpBookName, "Kesta Help");
    return bundle;
}

class JobTypeDialogsTest : public testing::Test {
protected:
    JobTypeDialogsTest() { qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path())); }
    ~JobTypeDialogsTest() override { qunsetenv("XDG_CONFIG_HOME"); }

    template <class Widget = QLineEdit> static Widget& get(QWidget& window, Control number)
    {
        for (const FourCharCode signature : {kSecurePrintSignature, kDelayedPrintSignature, kSavedJobSignature})
            if (auto* found = FindControlAs<Widget>(&window, {signature, number}))
                return *found;
        throw std::out_of_range("no such control");
    }
    // In place of all that the field holds.
    static void type(QWidget& window, Control number, const QString& text)
    {
        QLineEdit& field = get(window, number);
        field.selectAll();
        text.isEmpty() ? field.del() : TypeIntoField(&field, text);
    }
    // A key of the keyboard, wherever the focus is.
    static void press(QWidget& window, char c)
    {
        const int key = c == '\t' ? int{Qt::Key_Tab} : c == '\r' ? int{Qt::Key_Return} : int{c};
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(QLatin1Char(c)));
        QApplication::sendEvent(window.focusWidget(), &event);
    }
    static std::string passcodes(QWidget& window)
    {
        return (get(window, kPasscodeField).text() + u'|' + get(window, kConfirmationField).text()).toStdString();
    }
    static bool isEnabled(QWidget& window, Control number) { return get<QWidget>(window, number).isEnabled(); }
    static void cancel(QWidget& window) { Press(window, kCommandCancel); }
    static void ok(QWidget& window) { Press(window, kCommandOK); }
    OSStatus runSecurePrint() { return RunModalSecurePrintSetup(bundle, passcode); }
    OSStatus runSavedJob() { return RunModalSavedJobDialog(bundle, details); }
    std::vector<QString> history(const char* key)
    {
        return TypedValueHistory(CopyUserPreferences(kInputHistoryFile).value_or(Dictionary()), key);
    }
    void forgetTheFiles() { bundle.resourcesPath = u"/nowhere"_s; }

    QTemporaryDir folder;
    Bundle bundle = BundleOfDialogs();
    RecordingNotices notices;
    RecordingHelp help;
    LoadedDice dice;
    const WhileInstalled<Notices> noticesInstalled{notices};
    const WhileInstalled<HelpViewer> helpInstalled{help};
    const WhileInstalled<RandomSource> diceInstalled{dice};
    std::optional<QString> passcode;
    JobTypeDetails details;
};

TEST_F(JobTypeDialogsTest, SecurePrintTakesAPasscodeTypedTwice)
{
    ModalUser user;
    user.then([](QWidget& window) {
        EXPECT_EQ(window.focusWidget(), &get(window, kPasscodeField));
        EXPECT_EQ(get(window, kPasscodeField).echoMode(), QLineEdit::Password);
        EXPECT_EQ(get(window, kConfirmationField).echoMode(), QLineEdit::Password);
        EXPECT_EQ(get<QLabel>(window, kPasscodeLimits).text(), u"4 to 10 digits"_s);
        EXPECT_FALSE(isEnabled(window, kConfirmationField));

        type(window, kPasscodeField, u"123"_s);
        EXPECT_FALSE(isEnabled(window, kConfirmationField));
        type(window, kPasscodeField, u"12345"_s);
        EXPECT_TRUE(isEnabled(window, kConfirmationField));
        EXPECT_TRUE(isEnabled(window, kConfirmationLabel));
        type(window, kPasscodeField, u"12"_s);
        EXPECT_FALSE(isEnabled(window, kConfirmationField));
        type(window, kPasscodeField, u"0123456789"_s);
        type(window, kConfirmationField, u"0123456789"_s);
    });
    user.then(ok);
    EXPECT_EQ(runSecurePrint(), noErr);
    EXPECT_EQ(passcode, u"0123456789"_s);
    EXPECT_TRUE(notices.shown.empty());
}

TEST_F(JobTypeDialogsTest, APasscodeFieldRefusesLettersAndAnEleventhDigit)
{
    passcode = u"0123456789"_s;
    ModalUser user;
    user.then([](QWidget& window) {
        for (const Control number : {kPasscodeField, kConfirmationField}) {
            QLineEdit& field = get(window, number);
            field.setCursorPosition(4);
            for (const QString& typed : {u"1"_s, u"a"_s, u"é"_s, u"٣"_s, u" "_s})
                TypeIntoField(&field, typed);
            EXPECT_EQ(field.text(), u"0123456789"_s);
            field.selectAll();
            TypeIntoField(&field, u"12a4"_s);
            EXPECT_EQ(field.text(), u"0123456789"_s);
        }
        type(window, kPasscodeField, u"98765"_s);
    });
    user.then(cancel);
    runSecurePrint();
    EXPECT_EQ(passcode, u"0123456789"_s) << "cancelled";
}

TEST_F(JobTypeDialogsTest, SecurePrintStaysOpenUntilThePasscodesAreTheSame)
{
    ModalUser user;
    user.then([](QWidget& window) {
        type(window, kPasscodeField, u"1234"_s);
        type(window, kConfirmationField, u"12345"_s);
    });
    user.then(ok);
    user.then([this](QWidget& window) {
        ASSERT_EQ(notices.shown.size(), 1u);
        EXPECT_EQ(notices.shown[0].title, u"Invalid Secure Print Passcode Header"_s);
        EXPECT_EQ(notices.shown[0].message, u"4 to 10 digits"_s);
        EXPECT_EQ(window.focusWidget(), &get(window, kConfirmationField));
        EXPECT_TRUE(get(window, kConfirmationField).property("invalid").toBool());
        type(window, kPasscodeField, u"12345"_s);
        EXPECT_FALSE(get(window, kConfirmationField).property("invalid").toBool());
    });
    user.then(ok);
    runSecurePrint();
    EXPECT_EQ(passcode, u"12345"_s);
}

TEST_F(JobTypeDialogsTest, TooShortAPasscodeThatCannotBeConfirmedIsWhereTheUserIsSentBackTo)
{
    ModalUser user;
    user.then([](QWidget& window) { type(window, kPasscodeField, u"12"_s); });
    user.then(ok);
    user.then([](QWidget& window) {
        EXPECT_TRUE(get(window, kPasscodeField).property("invalid").toBool());
        cancel(window);
    });
    runSecurePrint();
    EXPECT_EQ(notices.shown.size(), 1u);
    EXPECT_EQ(passcode, std::nullopt);
}

TEST_F(JobTypeDialogsTest, WithoutAPasscodeOneIsMadeAndTold)
{
    ModalUser user;
    user.then(ok);
    runSecurePrint();
    EXPECT_EQ(passcode, QString::fromLatin1(kMadePasscode));
    ASSERT_EQ(notices.shown.size(), 1u);
    EXPECT_EQ(notices.shown[0].title, u"Passcode Required Header"_s);
    EXPECT_EQ(notices.shown[0].message, u"1234, or 4 to 10 digits"_s);
}

TEST_F(JobTypeDialogsTest, AStoredPasscodeIsAlreadyConfirmed)
{
    passcode = u"4711"_s;
    ModalUser user;
    user.then([](QWidget& window) {
        EXPECT_EQ(passcodes(window), "4711|4711");
        EXPECT_TRUE(isEnabled(window, kConfirmationField));
    });
    user.then(ok);
    runSecurePrint();
    EXPECT_EQ(passcode, u"4711"_s);
    EXPECT_TRUE(notices.shown.empty());
}

TEST_F(JobTypeDialogsTest, TheKeyboardAloneWillDo)
{
    ModalUser user;
    user.then([](QWidget& window) {
        for (const char c : std::string("24680\t24680\r"))
            press(window, c);
    });
    runSecurePrint();
    EXPECT_EQ(passcode, u"24680"_s);

    const QTime before = QTime(12, 34, 56);
    SInt64 time = before.msecsSinceStartOfDay() / 1000;
    const auto typed = [&](const char* keys) {
        ModalUser person;
        person.then([=](QWidget& window) {
            for (const char c : std::string(keys))
                press(window, c);
        });
        RunModalDelayedPrintSetup(bundle, time);
        return time % 86'400;
    };
    EXPECT_EQ(typed("21\r"), 21 * 3600 + 34 * 60 + 56);
    EXPECT_EQ(typed("08:45:30\r"), 8 * 3600 + 45 * 60 + 30);
    EXPECT_EQ(typed("070501\r"), 7 * 3600 + 5 * 60 + 1);
    EXPECT_EQ(typed("9:7:8\r"), 9 * 3600 + 7 * 60 + 8);
}

TEST_F(JobTypeDialogsTest, DelayedPrintStoresTheNextMomentOfATime)
{
    const StoppedClock clock;
    const WhileInstalled installed(const_cast<StoppedClock&>(clock));
    SInt64 time = 0;
    const auto choose = [&](QTime chosen, QTime expectedBefore) {
        ModalUser user;
        user.then([=](QWidget& window) {
            auto& field = get<QTimeEdit>(window, kTimeField);
            EXPECT_EQ(field.time(), expectedBefore);
            EXPECT_TRUE(field.displayFormat().contains(u"ss"_s));
            field.setTime(chosen);
        });
        user.then(ok);
        EXPECT_EQ(RunModalDelayedPrintSetup(bundle, time), noErr);
    };
    choose({8, 0, 30}, {0, 0});
    EXPECT_EQ(time, kToday + 86'400 + 8 * 3600 + 30);
    choose({9, 0}, {8, 0, 30});
    EXPECT_EQ(time, kToday + 9 * 3600);
    choose({23, 59, 59}, {9, 0});
    EXPECT_EQ(time, kToday + 86'399);

    ModalUser user;
    user.then([](QWidget& window) {
        get<QTimeEdit>(window, kTimeField).setTime({1, 1});
        cancel(window);
    });
    RunModalDelayedPrintSetup(bundle, time);
    EXPECT_EQ(time, kToday + 86'399);
}

TEST_F(JobTypeDialogsTest, AMirroredWindowShowsTheHourFirst)
{
    SInt64 time = 20 * 3600 + 30 * 60;
    QApplication::setLayoutDirection(Qt::RightToLeft);
    ModalUser user;
    user.then([](QWidget& window) {
        const QString text = get<QTimeEdit>(window, kTimeField).text();
        EXPECT_TRUE(text.startsWith(u"20:30") || text.startsWith(u"8:30")) << text.toStdString();
    });
    user.then(cancel);
    RunModalDelayedPrintSetup(bundle, time);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(JobTypeDialogsTest, ASavedJobStartsWithTheDocumentsNameInThePublicFolder)
{
    ModalUser user;
    user.then([](QWidget& window) {
        EXPECT_EQ(get<HistoryComboBox>(window, kJobNameBox).fixedValue(), 1);
        EXPECT_EQ(get<HistoryComboBox>(window, kJobNameBox).currentText(), u"UseJobName"_s);
        EXPECT_EQ(get<HistoryComboBox>(window, kFolderBox).currentText(), u"PublicFolder"_s);
        EXPECT_TRUE(get<QRadioButton>(window, kSaveRadio).isChecked());
        EXPECT_EQ(get<PictureView>(window, kFormatPicture).picture(), u"JobType_JobFormat_TIFF.gif"_s);
        for (const Control number : {kPasscodeLabel, kPasscodeField, kPasscodeLimits, kConfirmationLabel,
                                     kConfirmationField, kConfirmationLimits})
            EXPECT_FALSE(isEnabled(window, number)) << number;
    });
    user.then(ok);
    const JobTypeDetails before = details;
    EXPECT_EQ(runSavedJob(), noErr);
    EXPECT_EQ(details, before);
    EXPECT_FALSE(QDir(folder.path()).exists(u"kesta-print/"_s + QLatin1String(kInputHistoryFile)));
}

TEST_F(JobTypeDialogsTest, WhatTheUserTypesReachesTheSavedJobAndTheHistoryButNotThePasscode)
{
    details.savedJobName = u"old"_s;
    ModalUser user;
    user.then([](QWidget& window) {
        get<QRadioButton>(window, kSavePrintRadio).click();
        for (const auto& [box, text] : {std::pair(kJobNameBox, u"Report"_s), std::pair(kFolderBox, u"Team/2026"_s)}) {
            auto& combo = get<HistoryComboBox>(window, box);
            combo.lineEdit()->selectAll();
            TypeIntoField(&combo, text);
        }
        get<QCheckBox>(window, kSecureCheckBox).click();
        type(window, kPasscodeField, u"86420"_s);
        type(window, kConfirmationField, u"86420"_s);
    });
    user.then(ok);
    runSavedJob();
    EXPECT_EQ(details, (JobTypeDetails{.securePasscode = u"86420"_s,
                                       .hasPasscode = true,
                                       .saveDisposition = 2,
                                       .savedJobName = u"Report"_s,
                                       .useJobName = false,
                                       .savedJobLocation = u"Team/2026"_s,
                                       .useDefaultLocation = false}));
    EXPECT_EQ(history("savedJobNames"), std::vector{u"Report"_s});
    EXPECT_EQ(history("folderNames"), std::vector{u"Team/2026"_s});
    QFile file(folder.filePath(u"kesta-print/"_s + QLatin1String(kInputHistoryFile)));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_FALSE(file.readAll().contains("86420"));

    user.then([](QWidget& window) {
        auto& name = get<HistoryComboBox>(window, kJobNameBox);
        EXPECT_EQ(name.typedText(), u"Report"_s);
        EXPECT_EQ(name.itemCount(), 2);
        EXPECT_EQ(passcodes(window), "86420|86420");
        EXPECT_TRUE(isEnabled(window, kConfirmationField));
        EXPECT_TRUE(name.chooseItem(1));
        EXPECT_TRUE(get<HistoryComboBox>(window, kFolderBox).chooseItem(1));
        get<QCheckBox>(window, kSecureCheckBox).click();
        EXPECT_FALSE(isEnabled(window, kPasscodeField));
    });
    user.then(ok);
    runSavedJob();
    EXPECT_TRUE(details.useJobName);
    EXPECT_TRUE(details.useDefaultLocation);
    EXPECT_FALSE(details.hasPasscode);
    EXPECT_EQ(details.securePasscode, u"86420"_s) << "turning protection off leaves the stored passcode";
}

TEST_F(JobTypeDialogsTest, ACancelledSavedJobLeavesDetailsAndHistory)
{
    ModalUser user;
    user.then([](QWidget& window) {
        get<QRadioButton>(window, kSavePrintRadio).click();
        get<HistoryComboBox>(window, kJobNameBox).lineEdit()->selectAll();
        TypeIntoField(&get<HistoryComboBox>(window, kJobNameBox), u"Report"_s);
        get<QCheckBox>(window, kSecureCheckBox).click();
        cancel(window);
    });
    const JobTypeDetails before = details;
    runSavedJob();
    EXPECT_EQ(details, before);
    EXPECT_TRUE(history("savedJobNames").empty());
}

TEST_F(JobTypeDialogsTest, AProtectedSavedJobWithoutAPasscodeGetsOneDespiteAConfirmation)
{
    details.hasPasscode = true;
    details.securePasscode = u"1111"_s;
    ModalUser user;
    user.then([](QWidget& window) {
        type(window, kPasscodeField, {});
        EXPECT_FALSE(isEnabled(window, kConfirmationField));
        EXPECT_EQ(passcodes(window), "|1111");
    });
    user.then(ok);
    runSavedJob();
    EXPECT_EQ(details.securePasscode, QString::fromLatin1(kMadePasscode));
    ASSERT_EQ(notices.shown.size(), 1u);
    EXPECT_EQ(notices.shown[0].title, u"Passcode Required Header"_s);
}

TEST_F(JobTypeDialogsTest, AProtectedSavedJobStaysOpenUntilThePasscodesAreTheSame)
{
    ModalUser user;
    user.then([](QWidget& window) {
        get<QCheckBox>(window, kSecureCheckBox).click();
        EXPECT_EQ(window.focusWidget(), &get(window, kPasscodeField));
        EXPECT_TRUE(isEnabled(window, kPasscodeField));
        EXPECT_FALSE(isEnabled(window, kConfirmationField));
        type(window, kPasscodeField, u"1234"_s);
        EXPECT_TRUE(isEnabled(window, kConfirmationLimits));
        type(window, kConfirmationField, u"4321"_s);
    });
    user.then(ok);
    user.then([this](QWidget& window) {
        EXPECT_EQ(notices.shown.size(), 1u);
        get<QCheckBox>(window, kSecureCheckBox).click(); // without protection they do not matter
    });
    user.then(ok);
    runSavedJob();
    EXPECT_FALSE(details.hasPasscode);
    EXPECT_EQ(details.securePasscode, std::nullopt);
}

TEST_F(JobTypeDialogsTest, AJobNameTakesNoSlashAndFortyCharacters)
{
    details.useJobName = false;
    details.savedJobName = QString(38, u'x');
    ModalUser user;
    user.then([](QWidget& window) {
        auto& name = get<HistoryComboBox>(window, kJobNameBox);
        for (const QString& typed : {u"/"_s, u"a"_s, u"?"_s, u"bc"_s, u"日"_s, u"ü"_s, u"d"_s})
            TypeIntoField(&name, typed);
        EXPECT_EQ(name.typedText(), QString(38, u'x') + u"aü"_s);
    });
    user.then(cancel);
    runSavedJob();
}

TEST_F(JobTypeDialogsTest, WhatIsTypedIntoAFixedEntryTakesItsPlace)
{
    ModalUser user;
    user.then([](QWidget& window) {
        auto& name = get<HistoryComboBox>(window, kJobNameBox);
        name.lineEdit()->setCursorPosition(3);
        for (const QString& typed : {u"/"_s, u"A"_s, u"B"_s})
            TypeIntoField(&name, typed);
        EXPECT_EQ(name.fixedValue(), 1) << "until the field has settled";
    });
    user.then([](QWidget& window) {
        EXPECT_EQ(get<HistoryComboBox>(window, kJobNameBox).typedText(), u"AB"_s);
        ok(window);
    });
    runSavedJob();
    EXPECT_EQ(details.savedJobName, u"AB"_s);
    EXPECT_FALSE(details.useJobName);
}

TEST_F(JobTypeDialogsTest, OKWaitsForANameAndAFolder)
{
    const auto clear = [](HistoryComboBox& box) {
        box.lineEdit()->selectAll();
        box.lineEdit()->del();
    };
    ModalUser user;
    user.then([&](QWidget& window) {
        const QPushButton& okButton = *GetWindowDefaultButton(window);
        auto& name = get<HistoryComboBox>(window, kJobNameBox);
        auto& place = get<HistoryComboBox>(window, kFolderBox);
        EXPECT_TRUE(okButton.isEnabled());
        clear(name);
        EXPECT_FALSE(okButton.isEnabled());
        name.chooseItem(1);
        EXPECT_TRUE(okButton.isEnabled());
        clear(place);
        clear(name);
        TypeIntoField(&name, u"a"_s);
        EXPECT_FALSE(okButton.isEnabled()) << "still no folder";
        TypeIntoField(&place, u"b"_s);
        EXPECT_TRUE(okButton.isEnabled());
    });
    user.then(cancel);
    runSavedJob();
}

TEST_F(JobTypeDialogsTest, WhatADamagedTicketHoldsIsShownWithinBounds)
{
    details.saveDisposition = -3;
    details.mediaTypeInJob = CFIndex(1) << 40;
    details.useJobName = details.useDefaultLocation = false; // and neither name nor folder
    details.hasPasscode = true;
    details.securePasscode = QString(10'000'000, u'é');
    ModalUser user;
    user.then([](QWidget& window) {
        EXPECT_TRUE(get<QRadioButton>(window, kSaveRadio).isChecked());
        EXPECT_EQ(get<PictureView>(window, kFormatPicture).picture(), u"OutputColor_PrnDef.gif"_s);
        EXPECT_EQ(get<HistoryComboBox>(window, kJobNameBox).typedText(), QString());
        EXPECT_LT(get(window, kPasscodeField).text().size(), 100'000);
    });
    user.then(ok);
    runSavedJob();
    EXPECT_EQ(details.saveDisposition, 1);
    EXPECT_TRUE(details.useDefaultLocation) << "no folder is the public one";
    EXPECT_EQ(details.mediaTypeInJob, CFIndex(1) << 40);
}

TEST_F(JobTypeDialogsTest, EachDialogHasItsHelpPage)
{
    const auto helpOf = [&](const std::function<OSStatus()>& run) {
        ModalUser user;
        user.then([](QWidget& window) {
            Press(window, kCommandHelp);
            cancel(window);
        });
        EXPECT_EQ(run(), noErr);
        EXPECT_TRUE(QFile::exists(help.file)) << help.file.toStdString();
        return std::exchange(help.file, {});
    };
    SInt64 time = 0;
    EXPECT_TRUE(helpOf([&] { return runSecurePrint(); }).endsWith(u"/How_to/m_ht_use_Secure_Print.htm"_s));
    EXPECT_TRUE(helpOf([&] {
                    return RunModalDelayedPrintSetup(bundle, time);
                }).endsWith(u"/How_to/m_ht_use_Delayed_Print.htm"_s));
    EXPECT_TRUE(helpOf([&] { return runSavedJob(); }).endsWith(u"/Paper_Output/Job_Type/saved_job_e.htm"_s));
}

TEST_F(JobTypeDialogsTest, WithoutTheirWindowsTheDialogsChangeNothing)
{
    forgetTheFiles();
    passcode = u"1234"_s;
    SInt64 time = 7;
    const JobTypeDetails before = details;
    EXPECT_EQ(runSecurePrint(), kInterfaceFileUnreadable);
    EXPECT_EQ(RunModalDelayedPrintSetup(bundle, time), kInterfaceFileUnreadable);
    EXPECT_EQ(runSavedJob(), kInterfaceFileUnreadable);
    EXPECT_EQ(passcode, u"1234"_s);
    EXPECT_EQ(time, 7);
    EXPECT_EQ(details, before);
}

} // namespace
} // namespace kesta
