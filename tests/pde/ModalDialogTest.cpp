#include "pde/MenuUtilities.h"
#include "support/TestTexts.h"
#include "support/User.h"

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

    Bundle bundle = test::BundleWithTexts({"OK Command", "Cancel Command"});
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

TEST_F(CustomValueDialogTest, WhatDoesNotFitIsRefusedAsAWhole)
{
    text = QStringLiteral("1234");
    ModalUser user;
    user.then([](QWidget& window) {
        std::vector<TextLength> lengths;
        const EventHandler handler =
            InstallEventHandler(window, [&](const TextLengthEvent& event) {
                lengths.push_back(event.length);
                return EventResult::Handled;
            });
        field(window).setSelection(1, 2);
        field(window).insert(QStringLiteral("xyz"));
        EXPECT_EQ(field(window).text(), QStringLiteral("1234"));
        field(window).insert(QStringLiteral("xy"));
        EXPECT_EQ(field(window).text(), QStringLiteral("1xy4"));
        field(window).setSelection(0, 3);
        field(window).del();
        field(window).del();
        EXPECT_EQ(lengths, (std::vector{TextLength::LongEnough, TextLength::TooShort, TextLength::Empty}));
        test::Press(window, kCommandCancel);
    });
    run({.minimumLength = 4, .maximumLength = 4});
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
