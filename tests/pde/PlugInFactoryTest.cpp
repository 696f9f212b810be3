#include "pde/FakePanels.h"
#include "pde/interface/PanelOperations.h"
#include "pde/interface/PlugInInterface.h"
#include "pde/shell/PDEShell.h"
#include "pde/shell/PanelLoading.h"
#include "platform/plugins/PlugIn.h"
#include "product/PanelInterfaces.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

extern "C" int UsePlugInFromC(KestaPlugInFactory factory);

namespace kesta {
namespace {

TEST(PlugInFactory, ServesAHostInC)
{
    const UUID factory = *UUIDFromString("2469D08F-1C3C-4039-BE98-6ED74B921894");
    EXPECT_EQ(UsePlugInFromC(KestaPDEPluginFactory), 0);
    EXPECT_EQ(InstanceCount(factory), 0);
    KestaPlugIn* plugIn = KestaPDEPluginFactory(nullptr, kKestaDialogExtensionTypeID);
    EXPECT_EQ(InstanceCount(factory), 1);
    plugIn->table->Release(plugIn);
    EXPECT_EQ(InstanceCount(factory), 0);
}

class PanelLoadingTest : public testing::Test {
protected:
    ~PanelLoadingTest() override
    {
        KestaPDEUsePanels(nullptr);
        qunsetenv("KESTA_LIBRARY_ROOT");
    }
    QString problemOf(const std::vector<const char*>& names)
    {
        EXPECT_EQ(KestaPDEUsePanels(names.data()), noErr);
        const char* problem = "";
        const OSStatus status = KestaPDEFindPanels(&problem);
        EXPECT_EQ(status, problem ? kFileNotFound : noErr);
        const QString sentence = QString::fromUtf8(problem); // good until the next call
        EXPECT_EQ(KestaPDEFindPanels(nullptr), status);
        return sentence;
    }
};

TEST_F(PanelLoadingTest, TheProblemNamesWhatIsMissingAndWhere)
{
    Bundle bundle{.strings = Dictionary{{"Localizable", Dictionary{{"Panel Not Found", u"%2 hat %1 nicht"_s},
                                                                   {"Panel Not Loaded", u"%1: %2"_s}}}},
                  .path = u"/some/where/KestaFeatures.plugin"_s};
    test::FakePanel<'1'>::AddTo(bundle);
    LoadBundle(kPlugInIdentifier, std::move(bundle));
    EXPECT_EQ(problemOf({"Get1", nullptr}), QString());

    const QString unknown = problemOf({"Get1", "GetNothing", nullptr});
    EXPECT_EQ(unknown, u"/some/where/KestaFeatures.plugin hat GetNothing nicht"_s) << "in the plug-in's own words";

    const QString colors = problemOf({"GetColorOptionPanelInterface", nullptr});
    EXPECT_TRUE(colors.contains(u"/some/where/Library/Printers/Kesta/PDEs/ColorOptions.plugin"))
        << colors.toStdString();
}

TEST_F(PanelLoadingTest, AChosenRootGoesBeforeThePlugInsFolderAndThatBeforeTheSystem)
{
    const QTemporaryDir system, beside;
    const QString path = system.filePath(u"Colors.plugin"_s);
    const Bundle plugIn{.path = beside.filePath(u"KestaFeatures.plugin"_s)};
    const auto found = [&] { return shell::GetPanelPlugInPath(plugIn, path); };
    EXPECT_EQ(found(), beside.path() + path) << "what is missing is asked for here";
    ASSERT_TRUE(QDir().mkpath(path));
    EXPECT_EQ(found(), path);
    ASSERT_TRUE(QDir().mkpath(beside.path() + path));
    EXPECT_EQ(found(), beside.path() + path);
    qputenv("KESTA_LIBRARY_ROOT", "/else/where");
    EXPECT_EQ(found(), u"/else/where"_s + path) << "also where nothing is";
}

TEST_F(PanelLoadingTest, NullMeansTheProductsPanelsAndAnEmptyListNothing)
{
    const char* const none[] = {nullptr};
    const char* const two[] = {"A", "B", nullptr};
    EXPECT_EQ(KestaPDEUsePanels(two), noErr);
    EXPECT_EQ(KestaPDEUsePanels(none), kMissingArgument);
    EXPECT_EQ(shell::GetPanelFunctionNames(), (std::vector<std::string>{"A", "B"})) << "unchanged";
    EXPECT_EQ(KestaPDEUsePanels(nullptr), noErr);
    EXPECT_EQ(shell::GetPanelFunctionNames(),
              std::vector<std::string>(_PanelInterfaces.begin(), _PanelInterfaces.end()));
}

TEST_F(PanelLoadingTest, APanelThatFailsIsTriedAgainAtItsPlace)
{
    Bundle bundle;
    test::FakePanel<'1'>::AddTo(bundle);
    test::FakePanel<'2'>::AddTo(bundle);
    const char* const names[] = {"Get2", "Get1", nullptr};
    KestaPDEUsePanels(names);
    shell::PDEShellContext pane;
    pane.bundle = &bundle;
    test::failuresBeforeLoading = 1000;
    shell::LoadPanels(pane);
    test::failuresBeforeLoading = 0;
    ASSERT_EQ(pane.panels.size(), 2u);
    EXPECT_EQ(pane.panels[0].title, u"Panel 2");
    EXPECT_EQ(pane.panels[1].index, 2);
}

} // namespace
} // namespace kesta
