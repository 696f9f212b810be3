#include "toolkit/controls/TextInput.h"

#include "support/TestTexts.h"
#include "toolkit/Keys.h"
#include "toolkit/controls/ControlEvent.h"
#include "toolkit/controls/HistoryComboBox.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/controls/TextArea.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

#include <functional>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

// Lets in what fits into four characters.
class FourCharacters {
public:
    explicit FourCharacters(QWidget& field)
        : handler_(InstallEventHandler(
              field,
              [this](const TextTypedEvent& event) {
                  last = event;
                  return event.isEditingOnly() || event.lengthAfter() <= 4 ? EventResult::NotHandled
                                                                           : EventResult::Handled;
              },
              [this](const TextEditedEvent& event) {
                  edits << event.text;
                  return EventResult::Handled;
              }))
    {
    }
    TextTypedEvent last;
    QStringList edits;

private:
    EventHandler handler_;
};

struct Field {
    const char* name;
    std::unique_ptr<QWidget> (*make)();
    void (*select)(QWidget& field, int first, int count);
};

QLineEdit& Line(QWidget& field)
{
    auto* combo = qobject_cast<QComboBox*>(&field);
    return combo ? *combo->lineEdit() : static_cast<QLineEdit&>(field);
}

void SelectInLine(QWidget& field, int first, int count)
{
    Line(field).setSelection(first, count);
}

void SelectInArea(QWidget& field, int first, int count)
{
    auto& area = static_cast<TextArea&>(field);
    QTextCursor cursor = area.textCursor();
    cursor.setPosition(first);
    cursor.setPosition(first + count, QTextCursor::KeepAnchor);
    area.setTextCursor(cursor);
}

template <class Widget> std::unique_ptr<QWidget> MakeField()
{
    auto widget = std::make_unique<Widget>();
    SendTextEvents(*widget);
    return widget;
}

std::unique_ptr<QWidget> MakePasscodeField()
{
    auto line = std::make_unique<QLineEdit>();
    line->setEchoMode(QLineEdit::Password);
    SendTextEvents(*line);
    return line;
}

class EveryTextField : public testing::TestWithParam<Field> {
protected:
    std::unique_ptr<QWidget> field = GetParam().make();
    FourCharacters limit{*field};

    void select(int first, int count) { GetParam().select(*field, first, count); }
};

TEST_P(EveryTextField, AChunkThatIsRefusedLeavesTheFieldAsItWas)
{
    SetFieldText(field.get(), u"1234"_s);
    EXPECT_TRUE(limit.edits.isEmpty()) << "code sends nothing";
    select(1, 2);
    TypeIntoField(field.get(), u"xyz"_s);
    EXPECT_EQ(FieldText(field.get()), u"1234"_s);
    EXPECT_EQ(limit.last.typed, u"xyz"_s);
    EXPECT_EQ(limit.last.before, u"1234"_s);
    EXPECT_EQ(limit.last.replaced, 2);

    select(1, 2);
    TypeIntoField(field.get(), u"xy"_s);
    EXPECT_EQ(FieldText(field.get()), u"1xy4"_s);
    EXPECT_EQ(limit.edits, QStringList{u"1xy4"_s});
}

TEST_P(EveryTextField, KeysAndTheClipboardAreAskedForAlike)
{
    test::TypeKeys(*field, u"abcde"_s);
    EXPECT_EQ(FieldText(field.get()), u"abcd"_s);
    test::PressKey(*field, Qt::Key_Backspace, u"\b"_s);
    EXPECT_EQ(FieldText(field.get()), u"abc"_s);
    EXPECT_EQ(limit.edits.size(), 5);

    QApplication::clipboard()->setText(u"yz"_s);
    test::PressKey(*field, Qt::Key_V, u"\x16"_s, Qt::ControlModifier);
    EXPECT_EQ(FieldText(field.get()), u"abc"_s) << "two do not fit";
    QApplication::clipboard()->setText(u"z"_s);
    test::PressKey(*field, Qt::Key_V, u"\x16"_s, Qt::ControlModifier);
    EXPECT_EQ(FieldText(field.get()), u"abcz"_s);
}

TEST_P(EveryTextField, ATextFromCodeOverTheLimitDoesNotOpenTheGate)
{
    SetFieldText(field.get(), u"123456"_s);
    EXPECT_EQ(FieldText(field.get()), u"123456"_s);
    TypeIntoField(field.get(), u"7"_s);
    EXPECT_EQ(FieldText(field.get()), u"123456"_s);
    select(0, 6);
    test::PressKey(*field, Qt::Key_Backspace, u"\b"_s);
    EXPECT_EQ(FieldText(field.get()), QString());
    test::TypeKeys(*field, u"ab"_s);
    EXPECT_EQ(FieldText(field.get()), u"ab"_s);
}

INSTANTIATE_TEST_SUITE_P(Fields, EveryTextField,
                         testing::Values(Field{"line", MakeField<QLineEdit>, SelectInLine},
                                         Field{"passcode", MakePasscodeField, SelectInLine},
                                         Field{"combo", MakeField<HistoryComboBox>, SelectInLine},
                                         Field{"area", MakeField<TextArea>, SelectInArea}),
                         [](const auto& one) { return one.param.name; });

TEST(TextTyped, TellsEditingKeysApart)
{
    EXPECT_TRUE((TextTypedEvent{.typed = {}}.isEditingOnly()));
    EXPECT_TRUE((TextTypedEvent{.typed = u"\b\x7f"_s}.isEditingOnly()));
    EXPECT_FALSE((TextTypedEvent{.typed = u"\ba"_s}.isEditingOnly()));
}

TEST(Invalid, GoesAwayWithTheNextEdit)
{
    QLineEdit field;
    SetFieldText(&field, u"12"_s);
    SetInvalid(&field, true);
    EXPECT_TRUE(field.property("invalid").toBool());
    EXPECT_EQ(field.selectedText(), u"12"_s);
    test::TypeKeys(field, u"3"_s);
    EXPECT_FALSE(field.property("invalid").toBool());
    SetInvalid(nullptr, true);
}

TEST(HistoryComboBox, KeepsAFixedEntryAndATextThatReadsLikeItApart)
{
    HistoryComboBox combo;
    combo.setFixedEntries({{u"Use job name"_s, 1}, {u"None"_s, 4}});
    combo.setHistory({u"Report"_s, u"Letter"_s});
    QStringList events;
    const EventHandler handler = InstallEventHandler(
        combo,
        [&](const ItemChosenEvent& item) {
            events << u"item %1 %2"_s.arg(item.position).arg(item.ticketValue);
            return EventResult::NotHandled;
        },
        [&](const HitEvent& hit) {
            events << u"hit %1 %2"_s.arg(hit.value).arg(hit.ticketValue);
            return EventResult::NotHandled;
        });

    EXPECT_TRUE(combo.setFixedValue(4));
    EXPECT_FALSE(combo.setFixedValue(5));
    EXPECT_EQ(combo.fixedValue(), 4);
    EXPECT_TRUE(combo.typedText().isNull());
    combo.lineEdit()->selectAll();
    test::TypeKeys(combo, u"None"_s);
    test::PressKey(combo, Qt::Key_Return, u"\r"_s);
    EXPECT_EQ(combo.fixedValue(), std::nullopt);
    EXPECT_EQ(combo.typedText(), u"None"_s);
    EXPECT_TRUE(events.isEmpty());

    EXPECT_TRUE(combo.chooseItem(4));
    EXPECT_EQ(combo.typedText(), u"Letter"_s);
    EXPECT_TRUE(combo.chooseItem(1));
    EXPECT_EQ(combo.fixedValue(), 1);
    EXPECT_FALSE(combo.chooseItem(5));
    EXPECT_EQ(events, (QStringList{u"item 4 0"_s, u"hit 4 0"_s, u"item 1 1"_s, u"hit 1 1"_s}));

    combo.setHistory({u"Newest"_s});
    EXPECT_EQ(combo.fixedValue(), 1) << "a new history keeps what the field holds";
    combo.setTypedText(u"Newest"_s);
    combo.setFixedEntries({});
    EXPECT_EQ(combo.typedText(), u"Newest"_s);
    EXPECT_TRUE(combo.chooseItem(1));
}

TEST(SpinField, CountsInTheUnitsOfItsDecimals)
{
    QLocale::setDefault(QLocale(QLocale::German));
    {
        SpinField spin;
        std::vector<SInt32> hits;
        const EventHandler handler = InstallEventHandler(spin, [&](const HitEvent& hit) {
            hits.push_back(hit.value);
            return EventResult::Handled;
        });
        spin.setLimits(0, 10, 1);
        spin.setNumber(7);
        EXPECT_EQ(spin.text(), u"0,7"_s);
        spin.setNumber(10);
        EXPECT_TRUE(hits.empty()) << "only the user sends events";
        spin.stepDown();
        test::PressKey(spin, Qt::Key_Down);
        EXPECT_EQ(hits, (std::vector<SInt32>{9, 8}));

        spin.setLimits(1, 9999999);
        EXPECT_EQ(spin.number(), 1) << "brought within the new limits";
        spin.setNumber(9999999);
        EXPECT_EQ(spin.text(), u"9999999"_s);
        spin.setLimits(std::numeric_limits<SInt32>::min(), std::numeric_limits<SInt32>::max());
        spin.setNumber(std::numeric_limits<SInt32>::min());
        EXPECT_EQ(spin.number(), std::numeric_limits<SInt32>::min());
    }
    QLocale::setDefault(QLocale::c());
}

} // namespace
} // namespace kesta
