#include "golden/ChoiceWalker.h"
#include "pde/interface/PanelChoice.h"
#include "pde/interface/PlugInBundle.h"
#include "platform/plugins/Bundle.h"
#include "product/PanelInterfaces.h"
#include "support/PPDVariant.h"
#include "support/Recorders.h"
#include "support/TestTexts.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/SliderField.h"
#include "toolkit/controls/SummaryTextView.h"
#include "toolkit/windows/WindowSummary.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSlider>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::StringLiterals;

// Whatever a person chooses, controls, pictures and summaries say what the job's settings say: at once, when the
// settings are read again over others, and on printers that have it otherwise or don't have it. The choices are those
// of the golden file.
namespace kesta {
namespace {

constexpr ControlID kPanelPopup{"Shel"_code, 16};
constexpr FourCharCode kShellSignature = "Shel"_code;

// A job's settings.
class Settings {
public:
    explicit Settings(const Ticket& ticket) : values(ticket.values()), choices(ticket.ppdDict())
    {
        for (const Ticket::Entry& entry : ticket.entries())
            clients_[entry.key] = entry.client;
    }

    void load(Ticket& ticket) const
    {
        Ticket loaded;
        for (const auto& [key, value] : values)
            loaded.restore(key, value, clients_.at(key));
        loaded.ppdDict() = choices;
        ticket.swapContents(loaded);
    }
    bool operator==(const Settings& other) const { return values == other.values && choices == other.choices; }

    Dictionary values, choices;

private:
    std::map<QString, QString> clients_;
};

std::string Difference(const Dictionary& one, const Dictionary& other)
{
    QStringList differing;
    for (const auto& [key, value] : one) {
        const Value* found = other.find(key);
        if (!found || *found != value)
            differing << key;
    }
    for (const auto& [key, value] : other) {
        if (!one.find(key))
            differing << key;
    }
    return differing.join(u", "_s).toStdString();
}

QString StateOf(const QWidget& control)
{
    if (const auto* popup = qobject_cast<const PopupButton*>(&control)) {
        const MenuItem* item = popup->selectedItem();
        return item ? QString::number(item->value) + (item->notOffered ? u" !"_s : u""_s) : u"nothing"_s;
    }
    if (const auto* menu = qobject_cast<const MenuControl*>(&control)) {
        QStringList checked;
        for (const MenuItem& item : menu->menu().items)
            checked << (item.checked ? item.title : QString());
        return checked.join(u'|');
    }
    if (const auto* slider = qobject_cast<const SliderField*>(&control))
        return QString::number(slider->number());
    if (const auto* picture = qobject_cast<const PictureView*>(&control))
        return picture->pictures().join(u'+');
    if (const auto* summary = qobject_cast<const SummaryTextView*>(&control))
        return summary->text();
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    return button && button->isCheckable() ? QString::number(button->isChecked()) : u"-"_s;
}

using Shown = std::map<QString, QString>;
constexpr QLatin1StringView kLocked(" locked");

// All panels' controls, whether each can be used, and the window's summary.
Shown ShownIn(const QWidget& pane)
{
    Shown shown{{u"summary"_s, WindowSummary(pane).join(u" / "_s)}};
    for (const QWidget* control : pane.findChildren<QWidget*>()) {
        const ControlID id = GetControlID(*control);
        const bool isRoom = control->metaObject() == &QWidget::staticMetaObject; // for other controls
        if (id == ControlID() || id.signature == kShellSignature || isRoom)
            continue;
        const bool isLocked = control->testAttribute(Qt::WA_ForceDisabled);
        const QString state = StateOf(*control); // that of a plain button is no setting
        shown[u"%1#%2"_s.arg(id.signature).arg(id.number)] =
            state + (isLocked && state != u"-"_s ? u" locked"_s : u""_s);
    }
    return shown;
}

std::string Difference(const Shown& one, const Shown& other)
{
    std::string text;
    for (const auto& [name, state] : one) {
        const auto found = other.find(name);
        const QString there = found == other.end() ? u"no such control"_s : found->second;
        if (state != there)
            text += (name + u": "_s + state + u" / "_s + there + u'\n').toStdString();
    }
    return text;
}

struct OpenPane {
    const PanelInterface& slots;
    KestaContextRef context;
    test::FakeDialog& dialog;

    Ticket& ticket() const { return dialog.tickets.printSettings; }
    Settings settings() const { return Settings(ticket()); }
    void sync(bool toControls) const { slots.Sync(context, &dialog.session, toControls); }
    Shown read(const Settings& settings) const
    {
        settings.load(ticket());
        sync(true);
        return ShownIn(dialog.pane);
    }
    Shown shown() const
    {
        SendControlEvent(dialog.pane, CommandEvent{.command = kCommandOthersRead}); // as when one of them is shown
        return ShownIn(dialog.pane);
    }
    void showPanel(int panel) const
    {
        PopupButton* panels = FindPopupButton(&dialog.window, kPanelPopup);
        EXPECT_TRUE(panels->value() == panel || panels->chooseItem(panel));
    }
};

class ShownAndSentTest : public testing::Test {
protected:
    ShownAndSentTest()
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
        Bundle keys = *LoadBundleAt(QStringLiteral(KESTA_PLUGIN)).bundle;
        keys.strings = test::BundleWithAllTexts().strings;
        LoadBundle(kPlugInIdentifier, keys);
    }
    ~ShownAndSentTest() override { qunsetenv("XDG_CONFIG_HOME"); }

    void withPane(const test::PPDVariant& ppd, const std::function<void(const OpenPane&)>& act,
                  const Settings* settings = nullptr)
    {
        test::FakeDialog dialog;
        dialog.session.printer->ppdPath = ppd.path();
        if (settings)
            settings->load(dialog.tickets.printSettings);
        EXPECT_EQ(test::RunPane(factory, dialog,
                                [&](const PanelInterface& slots, KestaContextRef context) {
                                    act({slots, context, dialog});
                                    return noErr;
                                }),
                  noErr);
    }

    QTemporaryDir folder;
    const KestaPlugInFactory factory = test::FindBuiltFactory();
    test::RecordingNotices notices;
    const test::StoppedClock clock{20'000 * 86'400};
    const test::LoadedDice dice{9000 * 100 + 234};
};

struct Chosen {
    QString what;
    Settings settings;
    Shown shown;
};

// What was chosen is read over the start's settings and shown as it was; writing it anew changes nothing.
void ExpectReadAsChosen(const OpenPane& pane, const Settings& start, const Shown& shownAtStart, const Chosen& chosen)
{
    SCOPED_TRACE(chosen.what.toStdString());
    Shown again = pane.read(start);
    for (auto& [name, state] : again) { // a booklet's borders stay as picked for the next booklet
        const QString before = shownAtStart.at(name);
        if (before.endsWith(kLocked) && state.endsWith(kLocked))
            state = before;
    }
    EXPECT_EQ(Difference(shownAtStart, again), "") << "the start, after the choice";
    EXPECT_EQ(Difference(chosen.shown, pane.read(chosen.settings)), "") << "chosen / read";
    pane.sync(false);
    EXPECT_EQ(Difference(chosen.settings.values, pane.settings().values), "");
    EXPECT_EQ(Difference(chosen.settings.choices, pane.settings().choices), "");
}

// Plays everything in the pane, and calls the function for each choice.
void PlayAll(const OpenPane& pane, const std::function<void(const Chosen&)>& then)
{
    for (std::size_t panel = 1; panel <= _PanelInterfaces.size(); ++panel) {
        pane.showPanel(static_cast<int>(panel));
        test::ChoiceWalker walker(pane.slots, pane.context, pane.dialog, test::ChoiceWalker::Depth::Panel);
        walker.walk(QString::number(panel), [&](const test::WalkedChoice& choice) {
            then({choice.control + u' ' + choice.item, pane.settings(), pane.shown()});
        });
        walker.start();
        const Settings start = pane.settings();
        for (SliderField* slider : pane.dialog.pane.findChildren<SliderField*>()) {
            for (const int number : {slider->minimum(), 7, slider->maximum()}) {
                if (!slider->isVisibleTo(&pane.dialog.pane) || !slider->isEnabledTo(&pane.dialog.pane))
                    continue;
                pane.read(start);
                slider->slider().setValue(number);
                pane.sync(false);
                then({u"slider %1"_s.arg(number), pane.settings(), pane.shown()});
            }
        }
        pane.read(start);
    }
}

test::PPDVariant With(const char* finisher, const char* punchUnit, bool hasFaxAndDisk)
{
    test::PPDVariant ppd;
    ppd.setDefault("Option2", finisher).setDefault("Option4", punchUnit);
    for (const char* option : {"Option5", "Option8"})
        ppd.setDefault(option, hasFaxAndDisk ? "True" : "False");
    return ppd;
}

class AllChoicesTest : public ShownAndSentTest {
protected:
    // Of the printer that has everything.
    void playOn(const test::PPDVariant& ppd)
    {
        withPane(ppd, [this](const OpenPane& pane) {
            pane.sync(false);
            const Settings start = pane.settings();
            shownAtStart = pane.read(start);
            PlayAll(pane, [&](const Chosen& chosen) {
                ExpectReadAsChosen(pane, start, shownAtStart, chosen);
                all.push_back(chosen);
            });
        });
    }

    std::vector<Chosen> all;
    Shown shownAtStart;
};

// Where a row's own control is not there, another one says it.
bool HasRowsOfItsOwn(const Settings& settings)
{
    const auto isFinished = [&](const char* option) {
        const QString* choice = settings.choices.string(option);
        return choice && *choice != u"None"_s;
    };
    return isFinished("StapleLocation") || isFinished("KSPunch") || isFinished("KSFold");
}

QStringList Facts(const QString& summary)
{
    QString plain = summary;
    plain.remove(u' ').remove(u"NotOnThisPrinter"_s).remove(WithCaution({}).trimmed());
    return plain.toLower().split(QRegularExpression(u"[/,]"_s), Qt::SkipEmptyParts);
}

// Each pop-up has the value, marked where it does not offer it. One with nothing to choose from may be empty at the
// start's value.
void ExpectSameValues(const OpenPane& pane, const Shown& expected, const Shown& shownAtStart)
{
    for (const PopupButton* popup : pane.dialog.pane.findChildren<PopupButton*>()) {
        const ControlID id = GetControlID(*popup);
        const QString name = u"%1#%2"_s.arg(id.signature).arg(id.number);
        if (!expected.contains(name))
            continue;
        const QString value = expected.at(name).section(u' ', 0, 0);
        const MenuItem* item = popup->selectedItem();
        if (!item) {
            EXPECT_EQ(value, shownAtStart.at(name).section(u' ', 0, 0)) << name.toStdString();
            continue;
        }
        const auto offers = [&](const MenuItem& one) { return !one.notOffered && one.value == item->value; };
        EXPECT_EQ(item->value, value.toInt()) << name.toStdString();
        EXPECT_EQ(item->notOffered, std::ranges::none_of(popup->menu().items, offers)) << name.toStdString();
    }
}

void ExpectUnchanged(const OpenPane& pane, const Settings& settings)
{
    pane.sync(false);
    EXPECT_EQ(Difference(settings.values, pane.settings().values), "");
    EXPECT_EQ(Difference(settings.choices, pane.settings().choices), "");
}

TEST_F(AllChoicesTest, AreShownAsTheyAreSentOnEveryPrinter)
{
    ASSERT_TRUE(factory);
    playOn(With("CClass", "HolePunch24", true)); // with pop-ups for finishing
    all.clear();
    playOn(With("DClass_BK", "HolePunch24", true));
    ASSERT_GT(all.size(), 150U);

    std::vector<test::PPDVariant> others;
    others.push_back(With("CClass", "HolePunch23", false));
    others.push_back(With("None", "None", false));
    others.push_back(With("None", "None", false)); // and hardly an option
    for (const char* option : {"Duplex", "OutputBin", "Jog", "KSOutputOption", "MediaType", "MediaColor", "KSFold",
                               "KSPunch", "StapleLocation"})
        others.back().removeOption(option);
    for (const test::PPDVariant& other : others) {
        SCOPED_TRACE(&other - others.data());
        withPane(other, [this](const OpenPane& pane) {
            for (const Chosen& chosen : all) {
                if (HasRowsOfItsOwn(chosen.settings))
                    continue;
                SCOPED_TRACE(chosen.what.toStdString());
                pane.read(chosen.settings);
                ExpectSameValues(pane, chosen.shown, shownAtStart);
                ExpectUnchanged(pane, chosen.settings);
            }
        });
        for (const Chosen& chosen : all) {
            if (!HasRowsOfItsOwn(chosen.settings))
                continue;
            SCOPED_TRACE(chosen.what.toStdString());
            const auto compare = [&](const OpenPane& pane) {
                const QStringList here = Facts(WindowSummary(pane.dialog.pane).join(u'/'));
                for (const QString& fact : Facts(chosen.shown.at(u"summary"_s)))
                    EXPECT_TRUE(here.contains(fact)) << fact.toStdString() << " in " << here.join(u'/').toStdString();
                ExpectSameValues(pane, chosen.shown, shownAtStart);
                ExpectUnchanged(pane, chosen.settings);
            };
            withPane(other, compare, &chosen.settings);
        }
    }
}

// What the printer does when nobody chooses is shown as if it had been chosen.
TEST_F(ShownAndSentTest, DefaultsAreShownAsChoicesAre)
{
    ASSERT_TRUE(factory);
    const std::map<const char*, std::vector<const char*>> choices{
        {"Duplex", {"None", "DuplexNoTumble", "DuplexTumble"}},
        {"OutputBin", {"Middle", "Top", "Stacker", "Booklet"}},
        {"StapleLocation", {"None", "DualLandscape", "SinglePortrait", "MultipleStaples"}},
        {"KSPunch", {"2HolePunch", "None", "4HolePunch"}},
        {"KSFold", {"None", "None", "None", "C", "BiFold"}},
        {"MediaType", {"Transparency", "Bond", "TabStock", "Labels", "Standard"}},
        {"MediaColor", {"Clear", "Blue", "Ivory", "Custom1", "Unspecified"}},
        {"Jog", {"None", "EndOfSet"}},
        {"KSOutputOption", {"True", "False"}},
    };
    for (std::size_t round = 0; round < 5; ++round) {
        SCOPED_TRACE(round);
        test::PPDVariant byDefault = With("DClass_BK", "HolePunch24", true);
        Ticket ticket;
        for (const auto& [option, offered] : choices) {
            const char* choice = offered[std::min(round, offered.size() - 1)];
            byDefault.setDefault(option, choice);
            ticket.ppdDict().set(option, choice);
        }
        Shown shown;
        withPane(byDefault, [&](const OpenPane& pane) { shown = ShownIn(pane.dialog.pane); });
        const Settings chosen(ticket);
        withPane(
            byDefault, [&](const OpenPane& pane) { EXPECT_EQ(Difference(shown, ShownIn(pane.dialog.pane)), ""); },
            &chosen);
    }
}

} // namespace
} // namespace kesta
