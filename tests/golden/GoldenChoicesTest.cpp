#include "golden/ChoiceWalker.h"
#include "golden/GoldenFile.h"
#include "pde/interface/PlugInBundle.h"
#include "platform/plugins/Bundle.h"
#include "product/PanelInterfaces.h"
#include "support/PPDVariant.h"
#include "support/Recorders.h"
#include "support/TestTexts.h"
#include "toolkit/controls/Controls.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::StringLiterals;

// What every item of every pop-up, menu, list and button of the plug-in sets, against tests/data/golden-choices.tsv.
// scripts/golden writes the file anew; what changed in it is for people to review.
namespace kesta {
namespace {

using test::ChoiceEffect;
using test::WalkedChoice;

constexpr char kGoldenFile[] = TEST_DATA "/golden-choices.tsv";
constexpr ControlID kPanelPopup{"Shel"_code, 16};

struct Accessories {
    const char* finisher;
    const char* punchUnit;
    bool hasFaxAndDisk;
};
// The first one has all there is, and its windows are walked, too.
constexpr Accessories kAccessories[] = {
    {"DClass_BK", "HolePunch23", true}, {"DClass_BK", "HolePunch24", true}, {"DClass", "HolePunch23", true},
    {"CClass_BK", "HolePunch23", true}, {"CClass_BK", "None", true},        {"CClass", "HolePunch24", true},
    {"CClass", "HolePunch23", false},   {"OCT", "HolePunch23", true},       {"None", "None", false},
};

QString NameOf(const Accessories& fitted)
{
    return QString::fromLatin1(fitted.finisher) + u'/' + QString::fromLatin1(fitted.punchUnit).remove(u"HolePunch"_s) +
           (fitted.hasFaxAndDisk ? u""_s : u"/plain"_s);
}

class GoldenChoicesTest : public testing::Test {
protected:
    GoldenChoicesTest()
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
        // The plug-in with its keys for texts.
        Bundle keys = *LoadBundleAt(QStringLiteral(KESTA_PLUGIN)).bundle;
        keys.strings = test::BundleWithAllTexts().strings;
        LoadBundle(kPlugInIdentifier, keys);
    }
    ~GoldenChoicesTest() override { qunsetenv("XDG_CONFIG_HOME"); }

    // The panel's choices with these accessories, in lines of the file.
    QStringList linesOf(const Accessories& fitted, int panel)
    {
        test::PPDVariant ppd;
        ppd.setDefault("Option2", fitted.finisher).setDefault("Option4", fitted.punchUnit);
        for (const char* option : {"Option5", "Option8"})
            ppd.setDefault(option, fitted.hasFaxAndDisk ? "True" : "False");
        test::FakeDialog dialog;
        dialog.session.printer->ppdPath = ppd.path();
        QStringList lines;
        const auto walk = [&](const PanelInterface& slots, KestaContextRef context) {
            PopupButton* panels = FindPopupButton(&dialog.window, kPanelPopup);
            EXPECT_TRUE(panels->chooseItem(panel));
            const auto depth =
                &fitted == kAccessories ? test::ChoiceWalker::Depth::Windows : test::ChoiceWalker::Depth::Panel;
            const ChoiceEffect start = test::ChoiceWalker(slots, context, dialog, depth).start();
            lines = Lines(test::ChoiceWalker(slots, context, dialog, depth).walk(panels->selectedItem()->title), start);
            return noErr;
        };
        EXPECT_EQ(test::RunPane(factory, dialog, walk), noErr);
        return lines;
    }

    static QStringList Lines(const std::vector<WalkedChoice>& choices, const ChoiceEffect& start)
    {
        QStringList lines;
        for (const WalkedChoice& choice : choices) {
            const auto changed = [&](std::map<QString, QString> ChoiceEffect::*part) {
                return Changed(choices, choice, start, part);
            };
            if (!choice.isPossible) {
                lines << QStringList{choice.place, choice.control, choice.item, choice.value, u"not possible\t\t\t"_s}
                             .join(u'\t');
                continue;
            }
            lines << QStringList{choice.place,
                                 choice.control,
                                 choice.item,
                                 choice.value,
                                 choice.opens,
                                 changed(&ChoiceEffect::job),
                                 changed(&ChoiceEffect::ticket),
                                 changed(&ChoiceEffect::shown)}
                         .join(u'\t');
        }
        return lines;
    }

    static std::optional<QString> Find(const std::map<QString, QString>& entries, const QString& name)
    {
        const auto found = entries.find(name);
        return found == entries.end() ? std::nullopt : std::optional(found->second);
    }

    // Of what the items of the choice's control tell apart, or change: what the choice makes of it.
    static QString Changed(const std::vector<WalkedChoice>& choices, const WalkedChoice& choice,
                           const ChoiceEffect& start, std::map<QString, QString> ChoiceEffect::*part)
    {
        QStringList entries;
        for (const auto& [name, value] : choice.effect.*part) {
            const auto differs = [&, name = name](const WalkedChoice& other) {
                const ChoiceEffect& before = other.after ? choices[*other.after].effect : start;
                const std::optional<QString> made = Find(other.effect.*part, name);
                const bool isElsewhere = part == &ChoiceEffect::shown && !made; // in another window
                return other.place == choice.place && other.control == choice.control && !isElsewhere &&
                       made != Find(before.*part, name);
            };
            if (std::ranges::any_of(choices, differs))
                entries << name + u'=' + value;
        }
        return entries.join(u"; "_s);
    }

    QTemporaryDir folder;
    const KestaPlugInFactory factory = test::FindBuiltFactory();
    test::RecordingNotices notices;
    const test::StoppedClock clock{20'000 * 86'400};
    const test::LoadedDice dice{9000 * 100 + 234};
};

TEST_F(GoldenChoicesTest, EveryItemSetsWhatTheFileSays)
{
    ASSERT_TRUE(factory);
    QStringList order;
    std::map<QString, QStringList> fittedOf; // by line
    for (std::size_t panel = 1; panel <= _PanelInterfaces.size(); ++panel) {
        for (const Accessories& fitted : kAccessories) {
            for (const QString& line : linesOf(fitted, static_cast<int>(panel))) {
                if (!fittedOf.contains(line))
                    order << line;
                fittedOf[line] << NameOf(fitted);
            }
        }
    }
    test::GoldenFile file(kGoldenFile);
    file.add(u"place\tcontrol\titem\tvalue\topens\tjob options\tticket\tshows\twith"_s);
    for (const QString& line : order) {
        const bool isAlways = fittedOf[line].size() == static_cast<qsizetype>(std::size(kAccessories));
        file.add(line + u'\t' + (isAlways ? u"all"_s : fittedOf[line].join(u' ')));
    }
    file.compare();
}

// The printer's own words for its choices, "Option=Choice", read line by line.
std::map<QString, QString> ReadChoiceTexts()
{
    static const QRegularExpression choice(u"^\\*(\\w+) ([^/:]+)/([^:]+): *\""_s);
    std::map<QString, QString> texts;
    for (const QString& line : test::LinesOf(KESTA_PPD)) {
        if (const QRegularExpressionMatch match = choice.match(line); match.hasMatch())
            texts[match.captured(1) + u'=' + match.captured(2)] = match.captured(3);
    }
    return texts;
}

// The file once more, from the printer's description: an item that has a choice's text sets this choice, and of an
// option that the panels set each choice is offered.
TEST(GoldenChoices, AgreeWithThePrintersOwnWords)
{
    const std::map<QString, QString> textOf = ReadChoiceTexts();
    ASSERT_GT(textOf.size(), 200U);
    const Bundle keys = test::BundleWithAllTexts();
    QSet<QString> set, options;
    int compared = 0;
    for (const QString& line : test::LinesOf(kGoldenFile).mid(1)) {
        const QStringList columns = line.split(u'\t');
        const QString item = columns.value(2).section(u" > "_s, -1);
        QStringList texts;
        for (const QString& option : columns.value(5).split(u"; "_s, Qt::SkipEmptyParts)) {
            texts << (textOf.contains(option) ? textOf.at(option) : u"no such choice"_s);
            set << option;
            options << option.section(u'=', 0, 0);
        }
        const bool isPrinters = std::ranges::any_of(textOf, [&](const auto& row) { return row.second == item; }) &&
                                !keys.strings.dictionary("Localizable")->find(item);
        EXPECT_FALSE(texts.contains(u"no such choice"_s)) << line.toStdString();
        EXPECT_TRUE(!isPrinters || texts.isEmpty() || texts.contains(item)) << line.toStdString();
        compared += isPrinters && !texts.isEmpty();
    }
    EXPECT_GT(compared, 60);
    // No accessory makes whatever holes; a fax takes the colour away; a lying page turns the staple.
    set += {u"KSPunch=HolePunch"_s, u"KSTColor=Color"_s, u"StapleLocation=SingleLandscape"_s};
    for (const auto& [choice, text] : textOf)
        EXPECT_TRUE(!options.contains(choice.section(u'=', 0, 0)) || set.contains(choice)) << choice.toStdString();
}

} // namespace
} // namespace kesta
