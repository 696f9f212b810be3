#include "toolkit/controls/SliderField.h"

#include "support/TestTexts.h"
#include "toolkit/Keys.h"
#include "toolkit/controls/SpinField.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QSlider>

#include <vector>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

class Hits {
public:
    explicit Hits(QWidget& control)
        : handler_(InstallEventHandler(control, [this](const HitEvent& hit) {
              numbers.push_back(hit.value);
              return EventResult::Handled;
          }))
    {
    }
    std::vector<SInt32> numbers;

private:
    EventHandler handler_;
};

using Numbers = std::vector<SInt32>;

struct OptionalField {
    OptionalField()
    {
        spin.setEmptyText(u"Default"_s);
        spin.setLimits(-100, 100);
        spin.setNumber(kUnset);
    }
    void retype(const QString& text)
    {
        spin.selectAll();
        if (text.isEmpty())
            test::PressKey(spin, Qt::Key_Delete);
        test::TypeKeys(spin, text);
    }
    SpinField spin;
    Hits hits{spin};
};

TEST(SpinField, WithAnEmptyTextItMayHoldNothing)
{
    OptionalField field;
    EXPECT_EQ(field.spin.text(), QString());
    EXPECT_EQ(field.spin.number(), kUnset);

    field.retype(u"0"_s); // the number that lies below the empty field
    field.retype(QString());
    field.retype(u"-7"_s);
    field.retype(QString());
    EXPECT_EQ(field.hits.numbers, (Numbers{0, kUnset, -7, kUnset}));

    test::PressKey(field.spin, Qt::Key_Up);
    EXPECT_EQ(field.hits.numbers.back(), 1) << "on from 0, not from what was typed before";
    field.spin.setNumber(kUnset);
    field.spin.setLimits(0, 20);
    test::PressKey(field.spin, Qt::Key_Down);
    EXPECT_EQ(field.hits.numbers.back(), 0);
    EXPECT_EQ(field.spin.text(), u"0"_s);
}

TEST(SpinField, RefusesWhatIsOutOfRangeAsItIsTyped)
{
    OptionalField field;
    field.retype(u"101"_s);
    EXPECT_EQ(field.spin.text(), u"10"_s);
    field.retype(u"-250"_s);
    EXPECT_EQ(field.spin.text(), u"-25"_s);
    field.retype(u"x4"_s);
    EXPECT_EQ(field.hits.numbers.back(), 4);
}

TEST(SpinField, ANumberBeyondTheLimitsIsShownAndMarkedUntilItIsChanged)
{
    OptionalField field;
    const auto isMarked = [&] { return field.spin.property("invalid").toBool(); };
    field.spin.setNumber(250);
    EXPECT_EQ(field.spin.text(), u"250"_s);
    EXPECT_EQ(field.spin.number(), 250);
    EXPECT_TRUE(isMarked());
    field.retype(u"100"_s); // through 1 and 10
    EXPECT_FALSE(isMarked());
    EXPECT_EQ(field.hits.numbers, (Numbers{1, 10, 100}));

    field.spin.setNumber(-250);
    test::PressKey(field.spin, Qt::Key_Down);
    EXPECT_EQ(field.spin.number(), -250);
    test::PressKey(field.spin, Qt::Key_Up);
    EXPECT_EQ(field.hits.numbers.back(), -100);
    EXPECT_FALSE(isMarked());
    field.spin.setNumber(250);
    field.retype(QString());
    EXPECT_EQ(field.hits.numbers.back(), kUnset);
    field.spin.setNumber(0);
    EXPECT_EQ(field.spin.text(), u"0"_s);
}

TEST(SpinField, ArrowsStopWhereTypingNeedNot)
{
    OptionalField field;
    field.spin.setStepLimits(-8, 8);
    field.spin.setSingleStep(5);
    field.retype(u"6"_s);
    test::PressKey(field.spin, Qt::Key_Up);
    EXPECT_EQ(field.hits.numbers, (Numbers{6, 8}));
    field.retype(u"50"_s);
    test::PressKey(field.spin, Qt::Key_Up);
    EXPECT_EQ(field.spin.number(), 50);
    test::PressKey(field.spin, Qt::Key_Down);
    EXPECT_EQ(field.spin.number(), 8);
}

TEST(SpinField, TellsOnlyChangesOfTheUsers)
{
    OptionalField field;
    field.spin.setNumber(5000);
    test::PressKey(field.spin, Qt::Key_Return);
    EXPECT_TRUE(field.hits.numbers.empty());
    field.spin.setNumber(kUnset);
    test::PressKey(field.spin, Qt::Key_Return);
    EXPECT_TRUE(field.hits.numbers.empty());
    EXPECT_EQ(field.spin.number(), kUnset);

    SpinField never;
    never.setLimits(1, 9);
    never.setNumber(kUnset);
    EXPECT_EQ(never.number(), 1) << "a field without an empty text always has a number";
}

struct SliderFieldTest : testing::Test {
    SliderFieldTest()
    {
        control.setEmptyText(u"Default"_s);
        control.setMinimum(-100);
        control.setMaximum(100);
        control.setNumber(kUnset);
    }
    SliderField control;
    Hits hits{control};
};

TEST_F(SliderFieldTest, SliderAndFieldAreOneControl)
{
    control.setNumber(30);
    EXPECT_EQ(control.slider().value(), 30);
    EXPECT_TRUE(hits.numbers.empty()) << "code sends nothing";

    control.slider().setValue(-40); // as dragging does
    EXPECT_EQ(control.field().text(), u"-40"_s);
    test::PressKey(control.field(), Qt::Key_Down);
    EXPECT_EQ(control.slider().value(), -41);
    control.field().selectAll();
    test::PressKey(control.field(), Qt::Key_Delete);
    EXPECT_EQ(control.slider().value(), 0);
    EXPECT_EQ(control.number(), kUnset);
    EXPECT_EQ(hits.numbers, (Numbers{-40, -41, kUnset}));

    control.setNumber(5000);
    EXPECT_EQ(control.number(), 5000) << "as it is";
    EXPECT_EQ(control.slider().value(), 100);
}

} // namespace
} // namespace kesta
