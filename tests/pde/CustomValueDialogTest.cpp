#include "pde/forms/CustomValueDialog.h"

#include "support/Recorders.h"
#include "support/TestTexts.h"
#include "support/User.h"
#include "toolkit/controls/TextInput.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace kesta {
namespace {

using test::ModalUser;

class CustomValueDialogTest : public testing::Test {
protected:
    OSStatus run(TextLimits limits = {}) { return RunModalCustomValueDialog(bundle, limits, text, result); }
    static QLineEdit& field(QWidget& window) { return *FindTextField(&window, {"Util"_code, 1}); }

    Bundle bundle = test::BundleWithAllTexts();
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
    const test::RecordingHelp help;
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
    EXPECT_EQ(help.files.size(), 1);
}

TEST_F(CustomValueDialogTest, WithoutItsWindowNothingChanges)
{
    bundle.resourcesPath = QStringLiteral("/nowhere");
    EXPECT_EQ(run(), kInterfaceFileUnreadable);
    EXPECT_EQ(text, QStringLiteral("before"));
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
