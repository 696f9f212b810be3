#include "pde/ticket/TicketUtilities.h"
#include "platform/plugins/Bundle.h"
#include "platform/plugins/PlugIn.h"
#include "plugin/PaneLifecycle.h"
#include "printer/InstallableOptions.h"
#include "printer/PPDUtilities.h"
#include "product/PanelInterfaces.h"
#include "support/User.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <string_view>

using namespace Qt::StringLiterals;

// The plug-in as it is built, seen from a host that knows nothing but its door.
namespace kesta {
namespace {

using test::FakeDialog;

class PlugInBundleTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(factory); }

    template <class Widget> static std::vector<Widget*> Visible(QWidget& root)
    {
        std::vector<Widget*> visible;
        for (Widget* widget : root.findChildren<Widget*>()) {
            if (widget->isVisibleTo(&root))
                visible.push_back(widget);
        }
        return visible;
    }

    static void expectTexts(QWidget& pane)
    {
        for (const QLabel* label : Visible<QLabel>(pane))
            EXPECT_NE(label->text(), QLatin1StringView(kStringNotFound)) << label->objectName().toStdString();
        for (const QAbstractButton* button : Visible<QAbstractButton>(pane)) {
            EXPECT_NE(button->text(), QLatin1StringView(kStringNotFound)) << button->objectName().toStdString();
            EXPECT_FALSE(ControlName(*button).isEmpty()) << button->objectName().toStdString();
            EXPECT_NE(ControlName(*button), QLatin1StringView(kStringNotFound)) << button->objectName().toStdString();
        }
    }
    static bool showPanel(FakeDialog& dialog, int position)
    {
        return FindPopupButton(&dialog.window, {"Shel"_code, 16})->chooseItem(position);
    }
    static int positionOf(std::string_view function)
    {
        return static_cast<int>(std::ranges::find(_PanelInterfaces, function) - _PanelInterfaces.begin()) + 1;
    }
    static constexpr int kPanels = static_cast<int>(_PanelInterfaces.size());
    const int advanced = positionOf("GetAdvancedPanelInterface");

    const KestaPlugInFactory factory = test::FindBuiltFactory();
};

TEST_F(PlugInBundleTest, TwoPanesOneAfterTheOtherWriteTheirTickets)
{
    for (int run = 0; run < 2; ++run) {
        FakeDialog dialog;
        const auto mirror = [&](const PanelInterface&, KestaContextRef) {
            EXPECT_TRUE(showPanel(dialog, advanced));
            auto* popup = FindPopupButton(&dialog.window, {"Advn"_code, 106});
            return test::Pick(popup, 1) ? noErr : OSStatus{-1};
        };
        ASSERT_EQ(test::RunPane(factory, dialog, mirror), noErr);
        const Ticket& settings = dialog.tickets.printSettings;
        EXPECT_EQ(*settings.values().dictionary("com.kesta.print.InvertImageOptions"),
                  (Dictionary{{"MirrorImage", Number::Index(1)}}));
        EXPECT_EQ(*settings.values().string("com.kesta.print.ControllerInformation.ControllerFamily"), u"Discovery");
        EXPECT_EQ(*settings.ppdDict().string("Jog"), u"None");
        EXPECT_EQ(InstanceCount(*UUIDFromString("2469D08F-1C3C-4039-BE98-6ED74B921894")), 0);
    }
}

TEST_F(PlugInBundleTest, ASecondPaneShowsWhatTheFirstOneWrote)
{
    FakeDialog first, second;
    const auto choose = [&](const PanelInterface&, KestaContextRef) {
        EXPECT_TRUE(showPanel(first, advanced));
        EXPECT_TRUE(test::Pick(FindPopupButton(&first.window, {"Advn"_code, 107}), 1));
        EXPECT_TRUE(test::Pick(FindPopupButton(&first.window, {"Advn"_code, 105}), 1));
        return noErr;
    };
    ASSERT_EQ(test::RunPane(factory, first, choose), noErr);
    second.tickets.printSettings.swapContents(first.tickets.printSettings);
    const auto look = [&](const PanelInterface&, KestaContextRef) {
        EXPECT_EQ(FindPopupButton(&second.window, {"Advn"_code, 107})->selectedItem()->value, 1);
        EXPECT_EQ(FindPopupButton(&second.window, {"Advn"_code, 105})->selectedItem()->value, 1);
        return noErr;
    };
    EXPECT_EQ(test::RunPane(factory, second, look), noErr);
}

TEST_F(PlugInBundleTest, NothingThatAPersonSeesLacksItsText)
{
    FakeDialog dialog;
    const auto look = [&](const PanelInterface&, KestaContextRef) {
        for (int panel = 1; panel <= kPanels; ++panel) {
            EXPECT_TRUE(showPanel(dialog, panel));
            expectTexts(dialog.pane);
            EXPECT_FALSE(Visible<QAbstractButton>(dialog.pane).empty());
        }
        EXPECT_FALSE(showPanel(dialog, kPanels + 1)) << "one more than the table has";
        return noErr;
    };
    EXPECT_EQ(test::RunPane(factory, dialog, look), noErr);
}

TEST_F(PlugInBundleTest, EveryPanelOfTheTableIsExported)
{
    const Bundle* bundle = LoadBundleAt(QStringLiteral(KESTA_PLUGIN)).bundle;
    ASSERT_TRUE(bundle);
    const char* problem = "";
    const auto find = reinterpret_cast<KestaPDEFindPanelsFunction>(FunctionNamed(*bundle, "KestaPDEFindPanels"));
    ASSERT_TRUE(find);
    EXPECT_EQ(find(&problem), noErr) << problem;
    EXPECT_EQ(FunctionNamed(*bundle, "KestaPDEProlog"), nullptr) << "not an entry";
}

// This program links the library that the plug-ins link, and asks it what the panes' printer is.
TEST_F(PlugInBundleTest, TheHostSeesTheSessionAndThePrinterOfTheOpenPane)
{
    FakeDialog dialog;
    const auto look = [&](const PanelInterface&, KestaContextRef) {
        EXPECT_EQ(GetCurrentPrintSession(), &dialog.session);
        EXPECT_EQ(getInstallableOptionValue("Option2"), u"DClass_BK"_s);
        EXPECT_EQ(PPDCopyManufacturer(PPDGetCurrent()), u"Kesta"_s);
        return noErr;
    };
    EXPECT_EQ(test::RunPane(factory, dialog, look), noErr);
    EXPECT_EQ(GetCurrentPrintSession(), nullptr);
    EXPECT_EQ(getInstallableOptionValue("Option2"), std::nullopt);
}

// What a program or library keeps in memory of its own: names of its variables, those within functions included.
QSet<QString> VariablesOf(const QString& file)
{
    QProcess nm;
    nm.start(u"nm"_s, {u"--defined-only"_s, file});
    EXPECT_TRUE(nm.waitForFinished()) << nm.errorString().toStdString();
    static const QRegularExpression variable(u"^[0-9a-f]+ [bB] (_ZZ?N5kesta.*)$"_s,
                                             QRegularExpression::MultilineOption);
    QSet<QString> names;
    for (const QRegularExpressionMatch& match :
         variable.globalMatch(QString::fromLocal8Bit(nm.readAllStandardOutput())))
        names << match.captured(1);
    return names;
}

TEST_F(PlugInBundleTest, NoPlugInHasAStateOfItsOwnThatItIsToShare)
{
    const QSet<QString> shared = VariablesOf(u"" KESTA_SUPPORT ""_s);
    EXPECT_GT(shared.size(), 10);
    for (const QString& plugIn : {u"" KESTA_PLUGIN "/Contents/Linux/KestaFeatures.so"_s,
                                  u"" KESTA_COLOR_PLUGIN "/Contents/Linux/ColorOptions.so"_s}) {
        const QSet<QString> own = VariablesOf(plugIn);
        EXPECT_FALSE(own.isEmpty());
        EXPECT_EQ((own & shared).values(), QStringList()) << plugIn.toStdString();
    }
}

} // namespace
} // namespace kesta
