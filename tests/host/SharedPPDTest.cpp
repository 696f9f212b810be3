#include "host/ppd/Constraints.h"
#include "host/ppd/ListOptions.h"
#include "host/ppd/PPDFile.h"
#include "printer/PPDUtilities.h"

#include "support/CurrentPrinter.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace Qt::StringLiterals;

// One open PPD, which the host and the plug-in read by turns.
namespace kesta::host {
namespace {

using test::CurrentPrinter;
using test::PPDVariant;

QByteArray MarkedChoice(ppd_file_t* ppd, const char* option)
{
    const ppd_choice_t* choice = ppdFindMarkedChoice(ppd, option);
    return choice ? choice->choice : "nothing";
}

TEST(SharedPPDTest, IsReadOnceAndAgainWhenTheFileIsAnother)
{
    PPDVariant variant;
    const QString path = variant.path();
    const CurrentPrinter printer(path);
    EXPECT_EQ(OpenPPDFile(path).ppd.get(), PPDGetCurrent());
    EXPECT_EQ(SharedPPDFile(path).ppd.get(), PPDGetCurrent());
    EXPECT_NE(kesta::OpenPPDFile(path).ppd.get(), PPDGetCurrent()) << "opened for one reader";

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("*% changed\n");
    file.close();
    EXPECT_NE(OpenPPDFile(path).ppd.get(), PPDGetCurrent()) << "the plug-in keeps what it has open";
    EXPECT_FALSE(SharedPPDFile(path + u"-none"_s).ppd);
}

TEST(SharedPPDTest, NobodySeesWhatAnotherOneMarked)
{
    PPDVariant variant;
    const QString path = variant.path();
    const OptionList defaults = ListOptions(path, {});
    const CurrentPrinter printer(path);
    ppd_file_t* ppd = PPDGetCurrent();
    EXPECT_EQ(MarkedChoice(ppd, "Duplex"), "nothing") << "as the library opens it";

    ppdMarkDefaults(ppd);
    ppdMarkOption(ppd, "Duplex", "DuplexTumble");
    ppdMarkOption(ppd, "PageSize", "A3");
    EXPECT_EQ(ListOptions(path, {}).text, defaults.text);
    FindConflicts(path, {{"Duplex", "None"}, {"KSPunch", "2HolePunch"}, {"PageSize", "A5"}});
    EXPECT_EQ(MarkedChoice(ppd, "Duplex"), "DuplexTumble");
    EXPECT_EQ(MarkedChoice(ppd, "PageSize"), "A3");
    EXPECT_EQ(MarkedChoice(ppd, "KSPunch"), "None");
}

} // namespace
} // namespace kesta::host
