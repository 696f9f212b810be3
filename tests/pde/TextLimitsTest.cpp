#include "pde/forms/TextFieldUtilities.h"
#include "support/TestTexts.h"
#include "toolkit/controls/ControlEvent.h"
#include "toolkit/controls/HistoryComboBox.h"
#include "toolkit/controls/TextInput.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

// A field in a window that notes what the limits say about it: "+" long enough, "-" too short, "0" empty.
class TextLimitsTest : public testing::Test {
protected:
    TextLimitsTest() { field.setText(u"1234"_s); }

    void paste(const QString& text) { TypeIntoField(&field, text); }
    void press(int key, const QString& text = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&field, &event);
    }

    QWidget window;
    QLineEdit field{&window};
    std::string said;
    EventHandler listener = InstallEventHandler(window, [this](const TextLengthEvent& event) {
        said += event.length == TextLength::Empty ? '0' : event.length == TextLength::TooShort ? '-' : '+';
        return EventResult::Handled;
    });
};

TEST_F(TextLimitsTest, WhatWouldMakeTheTextTooLongIsRefusedAsAWhole)
{
    LimitInputLengthAndCharacters(&field, {.maximumLength = 4});
    field.setSelection(1, 2);
    paste(u"xyz"_s);
    EXPECT_EQ(field.text(), u"1234");
    EXPECT_EQ(field.selectedText(), u"23") << "still selected";
    EXPECT_EQ(said, "");
    paste(u"xy"_s);
    EXPECT_EQ(field.text(), u"1xy4");
    press(Qt::Key_5, u"5"_s);
    EXPECT_EQ(field.text(), u"1xy4");
    EXPECT_EQ(said, "+");
}

TEST_F(TextLimitsTest, OnlyAllowedCharactersEnter)
{
    LimitInputLengthAndCharacters(&field, {.allowedCharacters = u"0123456789"_s});
    field.selectAll();
    paste(u"12a"_s);
    EXPECT_EQ(field.text(), u"1234");
    press(Qt::Key_9, u"9"_s);
    EXPECT_EQ(field.text(), u"9");
    press(Qt::Key_A, u"a"_s);
    EXPECT_EQ(field.text(), u"9");
}

TEST_F(TextLimitsTest, EditingKeysPassUncheckedAndAreReported)
{
    field.setText(u"abcdef"_s); // by the program: more than the limit, and foreign
    LimitInputLengthAndCharacters(&field, {.minimumLength = 5, .maximumLength = 2, .allowedCharacters = u"x"_s});
    press(Qt::Key_Backspace, u"\b"_s);
    EXPECT_EQ(field.text(), u"abcde");
    press(Qt::Key_Backspace, u"\b"_s);
    field.selectAll();
    press(Qt::Key_Delete, u"\x7f"_s);
    EXPECT_EQ(field.text(), u"");
    EXPECT_EQ(said, "+-0");
}

TEST_F(TextLimitsTest, TheLastLimitsCountAndBelowOneIsNoLimit)
{
    LimitInputLengthAndCharacters(&field, {.minimumLength = 9, .maximumLength = 4, .allowedCharacters = u"0"_s});
    LimitInputLengthAndCharacters(&field, {.minimumLength = 0, .maximumLength = -1});
    paste(u"abc"_s);
    EXPECT_EQ(field.text(), u"1234abc");
    EXPECT_EQ(said, "+") << "and one handler, not two, reports it";
    LimitInputLengthAndCharacters(nullptr, {});
}

TEST_F(TextLimitsTest, AnItemOfAListIsAlwaysLongEnough)
{
    HistoryComboBox box(&window);
    box.setFixedEntries({{u"a"_s, 1}, {u"b"_s, 2}});
    LimitInputLengthAndCharacters(&box, {.minimumLength = 3, .maximumLength = 4});
    EXPECT_TRUE(box.chooseItem(2));
    EXPECT_EQ(said, "+");
    box.lineEdit()->selectAll();
    TypeIntoField(&box, u"ab"_s);
    EXPECT_EQ(said, "+-");
}

} // namespace
} // namespace kesta
