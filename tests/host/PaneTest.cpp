#include "host/Pane.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

// A plug-in whose operations are noted in the order of the calls.
struct FakePlugIn {
    QStringList calls = {};
    KestaStatus prologue = 0;
    KestaStatus initialize = 0;
    KestaStatus open = 0;
    QWidget* pane = nullptr;
    int plugIns = 0; // alive
    int panes = 0;
    std::vector<std::string> panels = {};
    bool usesOwnPanels = false;
    KestaStatus missing = 0;
};

FakePlugIn* fake = nullptr;
int context = 0;

PanelInterface paneTable{
    .Retain = nullptr,
    .Release =
        [](KestaDialogExtension** self) {
            --fake->panes;
            *self = nullptr;
        },
    .GetAPIVersion = nullptr,
    .Prologue =
        [](KestaPrologue* answer) {
            fake->calls << u"Prologue"_s;
            answer->context = &context;
            answer->title = "Fake";
            return fake->prologue;
        },
    .Initialize =
        [](KestaContextRef, const int32_t*, void*, QWidget* pane, PrintSession*) {
            fake->calls << u"Initialize"_s;
            fake->pane = pane;
            return fake->initialize;
        },
    .Sync =
        [](KestaContextRef, PrintSession*, bool toControls) {
            fake->calls << (toControls ? u"Sync in"_s : u"Sync out"_s);
            return KestaStatus{0};
        },
    .GetSummaryText =
        [](KestaContextRef, const char* const** titles, const char* const** summaries) {
            static const char* const kTitles[] = {"Paper", "Finishing", nullptr};
            static const char* const kSummaries[] = {"- Blue\n- Hole punched", "", nullptr};
            *titles = kTitles;
            *summaries = kSummaries;
            return KestaStatus{0};
        },
    .Open =
        [](KestaContextRef) {
            fake->calls << u"Open"_s;
            return fake->open;
        },
    .Close =
        [](KestaContextRef) {
            fake->calls << u"Close"_s;
            return KestaStatus{0};
        },
    .Terminate =
        [](KestaContextRef, KestaStatus status) {
            fake->calls << u"Terminate %1"_s.arg(status);
            return KestaStatus{0};
        },
};
KestaDialogExtension extension{&paneTable};

constexpr KestaIUnknownTable kPlugInTable{
    .reserved = nullptr,
    .QueryInterface =
        [](KestaPlugIn*, KestaUUID id, void** out) {
            if (!std::ranges::equal(id.bytes, kKestaDialogExtensionInterfaceID.bytes))
                return kKestaNoInterface;
            ++fake->panes;
            *out = &extension;
            return KestaResult{0};
        },
    .AddRef = nullptr,
    .Release =
        [](KestaPlugIn*) {
            --fake->plugIns;
            return uint32_t{0};
        },
};
KestaPlugIn plugInObject{&kPlugInTable};

const PlugIn kFakePlugIn{
    .factory = [](const void*, KestaUUID) -> KestaPlugIn* {
        ++fake->plugIns;
        return &plugInObject;
    },
    .usePanels =
        [](const char* const* names) {
            fake->usesOwnPanels = names == nullptr;
            for (; names && *names; ++names)
                fake->panels.emplace_back(*names);
            return KestaStatus{0};
        },
    .findPanels =
        [](const char** problem) {
            *problem = "GetNonePanelInterface was not found.";
            return fake->missing;
        },
};

class PaneTest : public testing::Test {
protected:
    PaneTest() { fake = &fake_; }
    ~PaneTest() override { fake = nullptr; }

    FakePlugIn fake_;
    QWidget host;
    PrintSession session;
};

TEST_F(PaneTest, CallsTheOperationsInOrder)
{
    {
        Pane pane(kFakePlugIn, host, session);
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
        fake_ = {.prologue = prologue, .initialize = initialize, .open = open};
        {
            Pane pane(kFakePlugIn, host, session);
            EXPECT_NE(pane.status(), noErr);
            pane.syncToTickets();
            EXPECT_TRUE(pane.summaries().empty());
        }
        EXPECT_EQ(fake_.calls.join(u", "_s), QString::fromUtf16(calls));
        EXPECT_EQ(fake_.plugIns, 0);
        EXPECT_EQ(fake_.panes, 0);
    }
}

TEST_F(PaneTest, PanelsAreChosenAndLookedFor)
{
    EXPECT_FALSE(ChoosePanels(kFakePlugIn, {}));
    EXPECT_TRUE(fake_.usesOwnPanels);
    EXPECT_FALSE(ChoosePanels(kFakePlugIn, {u"GetA"_s, u"GetB"_s}));
    EXPECT_EQ(fake_.panels, (std::vector<std::string>{"GetA", "GetB"}));
    fake_.missing = -43;
    EXPECT_EQ(ChoosePanels(kFakePlugIn, {}), u"GetNonePanelInterface was not found."_s);
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
