#include "pde/forms/BoundControls.h"

#include "platform/plugins/Bundle.h"
#include "support/TestTexts.h"
#include "support/User.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/PopupButton.h"
#include "toolkit/controls/SpinField.h"

#include <gtest/gtest.h>

#include <QCheckBox>

#include <array>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

constexpr FourCharCode kSignature = "Test"_code;

struct Record {
    SInt32 speed = 2, place = 0, copies = 3, borders = 8, absent = 6, own = 0;

    bool operator==(const Record&) const = default;
};

constexpr auto _SpeedMap = std::to_array<SettingRow>({{"Slow", 1}, {"Fast", 2}});
constexpr auto kBindings = std::to_array<Binding<Record>>({
    {1, kMember<&Record::speed>, {.map = _SpeedMap, .other = "Speed"}},
    {2, kMember<&Record::place>, {.map = _SpeedMap, .byPosition = true, .whenOpenedOnly = true}},
    {3, kMember<&Record::copies>},
    {4, kMember<&Record::borders>, {.on = 8, .off = 9}},
    {5, kMember<&Record::absent>, {.map = _SpeedMap}},
    {6, kMember<&Record::own>},
});

class BoundControlsTest : public testing::Test {
protected:
    BoundControlsTest()
    {
        SInt32 number = 0;
        for (QWidget* control : std::initializer_list<QWidget*>{&speed, &place, &copies, &borders})
            SetControlID(*control, {kSignature, ++number});
        SetControlID(own, {kSignature, 6});
        copies.setLimits(0, 99);
        controls.fill();
    }

    QWidget window;
    PopupButton speed{&window}, place{&window}, own{&window};
    SpinField copies{&window};
    QCheckBox borders{&window};
    const Bundle bundle = test::BundleWithTexts({"Slow", "Fast", "Speed", "Not On This Printer", "Other Value"});
    const BoundControls<Record> controls{{.root = &window, .signature = kSignature, .bundle = bundle, .ppd = nullptr},
                                         kBindings};
    Record record;
};

TEST_F(BoundControlsTest, EachKindOfControlShowsItsNumber)
{
    controls.show({.speed = 1, .place = 2}, Showing::Opened);
    EXPECT_EQ(speed.value(), 1);
    EXPECT_EQ(place.value(), 2) << "the item that stands for 2";
    EXPECT_EQ(copies.number(), 3);
    EXPECT_TRUE(borders.isChecked());
    controls.show({.speed = 2, .place = 1, .copies = 4, .borders = 9}, Showing::TicketRead, 3);
    EXPECT_EQ(speed.value(), 2);
    EXPECT_EQ(place.value(), 2) << "shown when the window opens only";
    EXPECT_EQ(copies.number(), 3) << "the user is typing there";
    EXPECT_FALSE(borders.isChecked());
}

TEST_F(BoundControlsTest, ANumberThatNoItemStandsForIsOneMoreItem)
{
    controls.show({.speed = 40}, Showing::Opened);
    EXPECT_EQ(speed.menu().count(), 3);
    EXPECT_EQ(speed.value(), 3);
    controls.takeAll(record);
    EXPECT_EQ(record.speed, 40);
    controls.show({.speed = 1, .place = 0}, Showing::Opened);
    EXPECT_EQ(speed.menu().count(), 2);
    EXPECT_EQ(speed.value(), 1);
}

TEST_F(BoundControlsTest, AHitChangesItsOwnNumber)
{
    controls.show(record, Showing::Opened);
    const EventHandler hits = InstallEventHandler(window, [this](const HitEvent& hit) {
        EXPECT_TRUE(controls.take(hit, record));
        return EventResult::NotHandled;
    });
    EXPECT_TRUE(test::Pick(&speed, 1));
    EXPECT_TRUE(test::Pick(&place, 2));
    copies.stepBy(1);
    EXPECT_EQ(record, (Record{.speed = 1, .place = 2, .copies = 4}));
    EXPECT_FALSE(controls.take({.control = {kSignature, 77}}, record));
}

TEST_F(BoundControlsTest, AllAreReadAtOnce)
{
    speed.setValue(1);
    place.setValue(2);
    copies.setNumber(12);
    controls.takeAll(record);
    EXPECT_EQ(record, (Record{.speed = 1, .place = 2, .copies = 12, .borders = 9}))
        << "what is absent or has no item keeps its number";
}

} // namespace
} // namespace kesta
