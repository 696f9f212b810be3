#include "pde/TextFieldUtilities.h"

#include "platform/HelpViewer.h"
#include "support/TestTexts.h"
#include "support/User.h"
#include "toolkit/TextInput.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QTimer>

namespace kesta {
namespace {

using test::ModalUser;

class CustomValueDialogTest : public testing::Test {
protected:
    OSStatus run(TextLimits limits = {}) { return RunModalCustomValueDialog(bundle, limits, text, result); }
    static QLineEdit& field(QWidget& window) { return *FindTextField(&window, {"Util"_code, 1}); }

    Bundle bundle = test::BundleWithTexts({"OK Command", "Cancel Command", "Custom Value:", "Custom Value Title"});
    std::optional<QString> text = QStringLiteral("before");
    ModalResult result{};
};

TEST_F(CustomValueDialogTest, OKTakesTheTextAndCancelTakesItAway)
{
    ModalUser user;
    user.then([](QWidget& window) {
        EXPECT_EQ(field(window).text(), QStringLiteral("before"));
        field(window).selectAll();
        field(window).insert(QStringLiteral("after"));
    });
    user.then([](QWidget& window) { test::Press(window, kCommandOK); });
    EXPECT_EQ(run(), noErr);
    EXPECT_EQ(result, ModalResult::OK);
    EXPECT_EQ(text, QStringLiteral("after"));

    user.then([](QWidget& window) { test::Press(window, kCommandCancel); });
    EXPECT_EQ(run(), noErr);
    EXPECT_EQ(result, ModalResult::Cancel);
    EXPECT_EQ(text, std::nullopt);

    user.then([](QWidget& window) { window.close(); });
    EXPECT_EQ(run(), noErr);
    EXPECT_EQ(result, ModalResult::Cancel);
}

TEST_F(CustomValueDialogTest, TheFieldKeepsToTheLimitsAndHelpIsOnOffer)
{
    struct RecordingHelp : HelpViewer {
        int shown = 0;
        OSStatus show(const QString&, const QString&) override
        {
            ++shown;
            return noErr;
        }
    } help;
    const WhileInstalled installed(help);
    bundle.info.set(kCFBundleHelpBookName, "Kesta Help");
    text = QStringLiteral("1234");
    ModalUser user;
    user.then([](QWidget& window) {
        TypeIntoField(&field(window), QStringLiteral("56789")); // all is selected
        EXPECT_EQ(field(window).text(), QStringLiteral("1234"));
        test::Press(window, kCommandHelp);
    });
    user.then([](QWidget& window) { test::Press(window, kCommandCancel); });
    run({.minimumLength = 4, .maximumLength = 4});
    EXPECT_EQ(help.shown, 1);
}

TEST_F(CustomValueDialogTest, WithoutItsWindowNothingChanges)
{
    bundle.resourcesPath = QStringLiteral("/nowhere");
    EXPECT_EQ(run(), kInterfaceFileUnreadable);
    EXPECT_EQ(text, QStringLiteral("before"));
}

TEST_F(CustomValueDialogTest, StepsGoToTheInnermostDialog)
{
    std::optional<QString> innerText;
    ModalResult innerResult{};
    QWidget* outer = nullptr;
    ModalUser user;
    user.then([&](QWidget& window) {
        outer = &window;
        QTimer::singleShot(0, &window, [&] { RunModalCustomValueDialog(bundle, {}, innerText, innerResult); });
    });
    user.then([&](QWidget& inner) {
        EXPECT_NE(&inner, outer);
        test::Press(inner, kCommandOK);
    });
    user.then([&](QWidget& window) {
        EXPECT_EQ(&window, outer);
        test::Press(window, kCommandCancel);
    });
    run();
    EXPECT_EQ(innerResult, ModalResult::OK);
    EXPECT_EQ(result, ModalResult::Cancel);
}

TEST_F(CustomValueDialogTest, ADialogThatNobodyAnswersFailsTheTestAndDoesNotHang)
{
    static Bundle unanswered;
    unanswered = bundle;
    EXPECT_NONFATAL_FAILURE(
        {
            ModalUser user;
            std::optional<QString> none;
            ModalResult ignored{};
            RunModalCustomValueDialog(unanswered, {}, none, ignored);
        },
        "nobody answers the dialog CustomValue");
}

} // namespace
} // namespace kesta
