#include "host/pane/Pane.h"

#include "host/FakePlugIn.h"
#include "platform/plugins/BundlePlaces.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

using test::FakePlugIn;

class PaneTest : public testing::Test {
protected:
    FakePlugIn fake_;
    QWidget host;
    PrintSession session;
};

TEST_F(PaneTest, CallsTheOperationsInOrder)
{
    {
        Pane pane(FakePlugIn::door(), host, session);
        EXPECT_EQ(pane.status(), noErr);
        EXPECT_EQ(pane.title(), u"Fake"_s);
        ASSERT_TRUE(fake_.pane);
        EXPECT_TRUE(host.isAncestorOf(fake_.pane));
        pane.syncToTickets();
        pane.syncToControls();
        const std::vector<PaneSummary> summaries = pane.summaries();
        ASSERT_EQ(summaries.size(), 2u);
        EXPECT_EQ(summaries[0].title, u"Paper"_s);
        EXPECT_EQ(summaries[0].text, u"- Blue\n- Hole punched"_s);
    }
    EXPECT_EQ(fake_.calls.join(u", "_s), u"Prologue, Initialize, Open, Sync out, Sync in, Close, Terminate 0"_s);
    EXPECT_TRUE(host.findChildren<QWidget*>().isEmpty());
    EXPECT_EQ(fake_.plugIns, 0);
    EXPECT_EQ(fake_.panes, 0);
}

TEST_F(PaneTest, AFailureIsTerminatedAndNeverClosed)
{
    struct Case {
        KestaStatus prologue, initialize, open;
        const char16_t* calls;
    };
    for (const auto& [prologue, initialize, open, calls] :
         {Case{-1, 0, 0, u"Prologue"}, Case{0, -9530, 0, u"Prologue, Initialize, Terminate -9530"},
          Case{0, 0, -9530, u"Prologue, Initialize, Open, Terminate -9530"}}) {
        FakePlugIn failing;
        failing.prologue = prologue;
        failing.initialize = initialize;
        failing.open = open;
        {
            Pane pane(FakePlugIn::door(), host, session);
            EXPECT_NE(pane.status(), noErr);
            pane.syncToTickets();
            EXPECT_TRUE(pane.summaries().empty());
        }
        EXPECT_EQ(failing.calls.join(u", "_s), QString::fromUtf16(calls));
        EXPECT_EQ(failing.plugIns, 0);
        EXPECT_EQ(failing.panes, 0);
    }
}

TEST_F(PaneTest, PanelsAreChosenAndLookedFor)
{
    EXPECT_FALSE(ChoosePanels(FakePlugIn::door(), {}));
    EXPECT_TRUE(fake_.usesOwnPanels);
    EXPECT_FALSE(ChoosePanels(FakePlugIn::door(), {u"GetA"_s, u"GetB"_s}));
    EXPECT_EQ(fake_.panels, (std::vector<std::string>{"GetA", "GetB"}));
    fake_.missing = -43;
    EXPECT_EQ(ChoosePanels(FakePlugIn::door(), {}), Verbatim(u"GetNonePanelInterface was not found."_s));
}

TEST(PlugInPlaces, TheEnvironmentComesFirst)
{
    qputenv("KESTA_PLUGIN_PATH", "/one:/two/KestaFeatures.plugin");
    const QStringList places = BundlePlaces(u"KestaFeatures.plugin"_s);
    qunsetenv("KESTA_PLUGIN_PATH");
    ASSERT_GT(places.size(), 2);
    EXPECT_EQ(places[0], u"/one/KestaFeatures.plugin"_s);
    EXPECT_EQ(places[1], u"/two/KestaFeatures.plugin"_s);
    EXPECT_EQ(places.last(), QCoreApplication::applicationDirPath() + u"/KestaFeatures.plugin"_s);
    EXPECT_EQ(FindBundleFolder({u"/nowhere"_s}), QString());
}

} // namespace
} // namespace kesta::host
