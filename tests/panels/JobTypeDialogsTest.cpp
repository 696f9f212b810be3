#include "panels/paper_output/DelayedPrint.h"
#include "panels/paper_output/PasscodeFields.h"
#include "panels/paper_output/SavedJob.h"
#include "panels/paper_output/SecurePrint.h"

#include "pde/menus/MenuUtilities.h"
#include "platform/system/UserPreferences.h"
#include "support/Recorders.h"
#include "support/TestTexts.h"
#include "support/User.h"
#include "toolkit/controls/HistoryComboBox.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/TextInput.h"
#include "toolkit/controls/TypedValueHistory.h"

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

#include <string>
#include <utility>

using namespace Qt::StringLiterals;

namespace kesta::jobtypes {
namespace {

using test::ModalUser;
using test::Press;

constexpr std::uint32_t kMakes1234 = 9000 * 100 + 234;
constexpr SInt64 kToday = 2'082'844'800 + SInt64(20'000) * 86'400;

Bundle BundleOfDialogs()
{
    Bundle bundle = test::BundleWithAllTexts();
    bundle.info.set(kCFBundleHelpBookName, "Kesta Help");
    return bundle;
}

class JobTypeDialogsTest : public testing::Test {
protected:
    JobTypeDialogsTest() { qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path())); }
    ~JobTypeDialogsTest() override { qunsetenv("XDG_CONFIG_HOME"); }

    template <class Widget = QLineEdit> static Widget& get(QWidget& window, SInt32 number)
    {
        for (const FourCharCode signature : {kSecurePrintSignature, kDelayedPrintSignature, kSavedJobSignature})
            if (auto* found = FindControlAs<Widget>(&window, {signature, number}))
                return *found;
        throw std::out_of_range("no such control");
    }
    // In place of all that the field holds.
    static void type(QWidget& window, SInt32 number, const QString& text)
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
    static bool isEnabled(QWidget& window, SInt32 number) { return get<QWidget>(window, number).isEnabled(); }
    static void cancel(QWidget& window) { Press(window, kCommandCancel); }
    static void ok(QWidget& window) { Press(window, kCommandOK); }
    OSStatus runSecurePrint() { return RunModalSecurePrintSetup(bundle, passcode); }
    OSStatus runSavedJob() { return RunModalSavedJobDialog(bundle, details); }
    std::vector<QString> history(const char* key)
    {
        return TypedValueHistory(CopyUserPreferences(kInputHistoryFile).value_or(Dictionary()), key);
    }

    QTemporaryDir folder;
    Bundle bundle = BundleOfDialogs();
    test::RecordingNotices notices;
    test::RecordingHelp help;
    const test::LoadedDice dice{kMakes1234};
    std::optional<QString> passcode;
    JobType details;
};

TEST_F(JobTypeDialogsTest, PasscodesAreHiddenAndMarkedWhereTheyDiffer)
{
    ModalUser user;
    user.then([](QWidget& window) {
        for (const SInt32 number : {kPasscodeField, kConfirmationField})
            EXPECT_EQ(get(window, number).echoMode(), QLineEdit::Password);
        EXPECT_EQ(get<QLabel>(window, kPasscodeLimits).text(), u"Min-Max Digits 4 10"_s);
        type(window, kPasscodeField, u"٣12"_s); // refused whole
        type(window, kPasscodeField, u"1234"_s);
        type(window, kConfirmationField, u"12345"_s);
    });
    user.then(ok);
    user.then([](QWidget& window) {
        EXPECT_EQ(window.focusWidget(), &get(window, kConfirmationField));
        EXPECT_TRUE(get(window, kConfirmationField).property("invalid").toBool());
        type(window, kPasscodeField, u"12345"_s);
        EXPECT_FALSE(get(window, kConfirmationField).property("invalid").toBool());
    });
    user.then(ok);
    runSecurePrint();
    EXPECT_EQ(passcode, u"12345"_s);
    EXPECT_EQ(notices.titles, QStringList(u"Invalid Secure Print Passcode Header"_s));
}

TEST_F(JobTypeDialogsTest, AStoredPasscodeThatNobodyCanTypeIsMarkedUntilItIsTypedAnew)
{
    passcode = u"12345678901234"_s;
    ModalUser user;
    user.then([](QWidget& window) {
        EXPECT_TRUE(get(window, kPasscodeField).property("invalid").toBool());
        EXPECT_EQ(get(window, kPasscodeField).accessibleDescription(), u"Invalid Secure Print Passcode Message 4 10"_s);
    });
    user.then(ok);
    user.then([](QWidget& window) {
        EXPECT_EQ(window.focusWidget(), &get(window, kPasscodeField));
        EXPECT_FALSE(get(window, kConfirmationField).property("invalid").toBool());
        type(window, kPasscodeField, u"8642"_s);
        type(window, kConfirmationField, u"8642"_s);
    });
    user.then(ok);
    runSecurePrint();
    EXPECT_EQ(passcode, u"8642"_s);

    details.hasPasscode = true;
    details.securePasscode = u"pass"_s;
    user.then([](QWidget& window) {
        EXPECT_TRUE(get(window, kPasscodeField).property("invalid").toBool());
        type(window, kPasscodeField, u"864"_s);
        EXPECT_FALSE(get(window, kPasscodeField).property("invalid").toBool());
    });
    user.then(ok);
    user.then(cancel);
    runSavedJob();
    EXPECT_EQ(details.securePasscode, u"pass"_s);
    EXPECT_EQ(notices.titles,
              (QStringList{u"Invalid Secure Print Passcode Header"_s, u"Invalid Saved Job Passcode Header"_s}));
}

TEST_F(JobTypeDialogsTest, ATimeIsTypedKeyByKey)
{
    const auto typeAll = [](const char* keys) {
        return [keys](QWidget& window) {
            for (const char* c = keys; *c; ++c)
                press(window, *c);
        };
    };
    ModalUser user;
    SInt64 time = 12 * 3600 + 34 * 60 + 56;
    const auto typed = [&](const char* keys) {
        user.then(typeAll(keys));
        RunModalDelayedPrintSetup(bundle, time);
        return QTime::fromMSecsSinceStartOfDay(static_cast<int>(time % 86'400) * 1000);
    };
    EXPECT_EQ(typed("21\r"), QTime(21, 34, 56));
    EXPECT_EQ(typed("08:45:30\r"), QTime(8, 45, 30));
    EXPECT_EQ(typed("070501\r"), QTime(7, 5, 1));
    EXPECT_EQ(typed("9:7:8\r"), QTime(9, 7, 8));
}

TEST_F(JobTypeDialogsTest, DelayedPrintStoresTheNextMomentOfATime)
{
    const test::StoppedClock nineOClock(20'000 * 86'400 + 9 * 3600);
    SInt64 time = 0;
    const auto choose = [&](QTime chosen, QTime expectedBefore, void (*end)(QWidget&)) {
        ModalUser user;
        user.then([=](QWidget& window) {
            auto& field = get<QTimeEdit>(window, kTimeField);
            EXPECT_EQ(field.time(), expectedBefore);
            EXPECT_TRUE(field.displayFormat().contains(u"ss"_s));
            field.setTime(chosen);
        });
        user.then(end);
        EXPECT_EQ(RunModalDelayedPrintSetup(bundle, time), noErr);
    };
    choose({8, 0, 30}, {0, 0}, ok);
    EXPECT_EQ(time, kToday + 86'400 + 8 * 3600 + 30);
    choose({23, 59}, {8, 0, 30}, cancel);
    EXPECT_EQ(time, kToday + 86'400 + 8 * 3600 + 30);
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
    EXPECT_EQ(details, (JobType{.securePasscode = u"86420"_s,
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

TEST_F(JobTypeDialogsTest, AJobNameTakesNoSlashAndFortyCharactersAndCancelNothing)
{
    details.useJobName = false;
    details.savedJobName = QString(38, u'x');
    const JobType before = details;
    ModalUser user;
    user.then([](QWidget& window) {
        auto& name = get<HistoryComboBox>(window, kJobNameBox);
        for (const QString& typed : {u"/"_s, u"a"_s, u"?"_s, u"bc"_s, u"日"_s, u"ü"_s, u"d"_s})
            TypeIntoField(&name, typed);
        EXPECT_EQ(name.typedText(), QString(38, u'x') + u"aü"_s);
        get<QCheckBox>(window, kSecureCheckBox).click();
    });
    user.then(cancel);
    runSavedJob();
    EXPECT_EQ(details, before);
    EXPECT_TRUE(history("savedJobNames").empty());
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
    details.useJobName = details.useDefaultLocation = false; // and neither name nor folder
    details.hasPasscode = true;
    details.securePasscode = QString(10'000'000, u'é');
    ModalUser user;
    user.then([](QWidget& window) {
        EXPECT_FALSE(GetWindowDefaultButton(window)->isEnabled()) << "from the start";
        auto& name = get<HistoryComboBox>(window, kJobNameBox);
        EXPECT_EQ(name.typedText(), QString());
        EXPECT_LT(get(window, kPasscodeField).text().size(), 100'000);
        TypeIntoField(&name, u"a"_s);
        EXPECT_TRUE(get<HistoryComboBox>(window, kFolderBox).chooseItem(1));
        get<QCheckBox>(window, kSecureCheckBox).click();
    });
    user.then(ok);
    runSavedJob();
    EXPECT_EQ(details.saveDisposition, 1);
    EXPECT_TRUE(details.useDefaultLocation);
}

TEST_F(JobTypeDialogsTest, EachDialogHasItsHelpPage)
{
    ModalUser user;
    for (int dialog = 0; dialog < 3; ++dialog)
        user.then([](QWidget& window) { Press(window, kCommandHelp); }).then(cancel);
    SInt64 time = 0;
    runSecurePrint();
    RunModalDelayedPrintSetup(bundle, time);
    runSavedJob();
    ASSERT_EQ(help.files.size(), 3);
    EXPECT_TRUE(help.files[0].endsWith(u"/How_to/m_ht_use_Secure_Print.htm"_s));
    EXPECT_TRUE(help.files[1].endsWith(u"/How_to/m_ht_use_Delayed_Print.htm"_s));
    EXPECT_TRUE(help.files[2].endsWith(u"/Paper_Output/Job_Type/saved_job_e.htm"_s));
}

TEST_F(JobTypeDialogsTest, WithoutTheirWindowsTheDialogsChangeNothing)
{
    bundle.resourcesPath = u"/nowhere"_s;
    SInt64 time = 7;
    EXPECT_EQ(runSecurePrint(), kInterfaceFileUnreadable);
    EXPECT_EQ(RunModalDelayedPrintSetup(bundle, time), kInterfaceFileUnreadable);
    EXPECT_EQ(runSavedJob(), kInterfaceFileUnreadable);
}

} // namespace
} // namespace kesta::jobtypes
