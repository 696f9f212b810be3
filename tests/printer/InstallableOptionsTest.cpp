#include "printer/InstallableOptions.h"
#include "printer/PPDFacts.h"
#include "printer/PPDUtilities.h"
#include "product/InstalledFeatures.h"
#include "support/Accessories.h"
#include "support/CurrentPrinter.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QSet>

#include <cups/ppd.h>

namespace kesta {
namespace {

using test::CurrentPrinter;
using test::PPDVariant;
using test::WithAccessories;

QStringList Installed()
{
    QSet<QString> names;
    for (const FeatureRow& row : InstalledFeatures) {
        if (getInstalledFeature(row.feature))
            names.insert(QString::fromLatin1(row.feature));
    }
    QStringList sorted(names.begin(), names.end());
    sorted.sort();
    return sorted;
}

TEST(InstallableOptions, TheFirstInstalledRowOfAFeatureAnswers)
{
    const WithAccessories fitted({{"Option4", "HolePunch24"}});
    const Bundle bundle = test::BundleWithTexts({"2HolePunch", "4HolePunch"});
    EXPECT_TRUE(getInstalledFeature("DualPunchKey"));
    EXPECT_TRUE(getInstalledFeature("QuadruplePunchKey"));
    EXPECT_FALSE(getInstalledFeature("TriplePunchKey"));
    EXPECT_EQ(CopyLocalizedStringForInstalledFeatureFromPlugin("DualPunchKey", bundle), QStringLiteral("2HolePunch"));
    EXPECT_EQ(CopyLocalizedStringForInstalledFeatureFromPlugin("SingleStapleKey", bundle),
              QStringLiteral("STRING NOT FOUND"));
    EXPECT_EQ(CopyLocalizedStringForInstalledFeatureFromPlugin("TriplePunchKey", bundle), std::nullopt);
    EXPECT_EQ(CopyLocalizedStringForInstalledFeatureFromPlugin("FaxKey", bundle), std::nullopt);
    EXPECT_EQ(getInstallableOptionTicketValue("FaxKey"), 0);
    EXPECT_EQ(getInstallableOptionTicketValue("TriplePunchKey"), std::nullopt);
    EXPECT_FALSE(getInstalledFeature("GenericPunchKey"));
    EXPECT_FALSE(getInstalledFeature("dualPunchKey"));
}

TEST(InstallableOptions, ASecondLoadingChangesNothing)
{
    static constexpr auto other = std::to_array<FeatureRow>({{"Always", nullptr, nullptr, nullptr, 7}});
    const WithAccessories fitted({{"Option2", "OCT"}});
    const CurrentPrinter printer; // another finisher
    EXPECT_FALSE(LoadInstallableOptions(PPDGetCurrent(), other));
    EXPECT_FALSE(getInstalledFeature("Always"));
    EXPECT_EQ(getInstallableOptionValue("Option2"), QStringLiteral("OCT"));

    UnloadInstallableOptions();
    EXPECT_EQ(getInstallableOptionValue("Option2"), std::nullopt);
    EXPECT_FALSE(getInstalledFeature("OCT"));
    EXPECT_TRUE(LoadInstallableOptions(PPDGetCurrent(), other));
    EXPECT_EQ(getInstallableOptionTicketValue("Always"), 7);
}

TEST(InstallableOptions, WithoutTheGroupTheTableIsLoadedAndNothingFitted)
{
    PPDVariant ppd;
    ppd.removeGroup("InstallableOptions");
    const CurrentPrinter printer(ppd);
    ASSERT_NE(PPDGetCurrent(), nullptr);
    EXPECT_FALSE(LoadInstallableOptions(PPDGetCurrent(), InstalledFeatures));
    EXPECT_EQ(Installed(), QStringList());
    EXPECT_FALSE(LoadInstallableOptions(PPDGetCurrent(), InstalledFeatures));
    EXPECT_EQ(CopyDeviceMimicFilename(), QStringLiteral("Mimic_ED_Westmarch_.gif"));
    UnloadInstallableOptions();
}

TEST(InstallableOptions, OptionsWithoutAGoodDefaultAreLeftOut)
{
    PPDVariant ppd;
    ppd.setDefault("Option2", "NoSuchFinisher").replaceLines("*DefaultOption4:", "");
    const CurrentPrinter printer(ppd);
    EXPECT_TRUE(LoadInstallableOptions(PPDGetCurrent(), InstalledFeatures));
    EXPECT_EQ(getInstallableOptionValue("Option2"), std::nullopt);
    EXPECT_EQ(getInstallableOptionValue("Option4"), std::nullopt);
    EXPECT_EQ(getInstallableOptionValue("Option1"), QStringLiteral("HCF"));
    EXPECT_EQ(CopyDeviceMimicFilename(), QStringLiteral("Mimic_ED_Westmarch_HiCap-.gif"));
    UnloadInstallableOptions();
}

TEST(InstallableOptions, ThePictureShowsFeederAndFinisher)
{
    const auto picture = [](const char* feeder, const char* finisher) {
        const WithAccessories fitted({{"Option1", feeder}, {"Option2", finisher}});
        return CopyDeviceMimicFilename().section(QStringLiteral("Westmarch_"), 1);
    };
    EXPECT_EQ(CopyDeviceMimicFilename(), QStringLiteral("Mimic_ED_Westmarch_.gif"));
    EXPECT_EQ(picture("HCF", "DClass_BK"), QStringLiteral("HiCap-LtProd+Fold.gif"));
    EXPECT_EQ(picture("None", "None"), QStringLiteral("Bypass-Catch.gif"));
    EXPECT_EQ(picture("None", "OCT"), QStringLiteral("Bypass-Catch.gif"));
    EXPECT_EQ(picture("None", "CClass"), QStringLiteral("Bypass-Adv.gif"));
    EXPECT_EQ(picture("HCF", "CClass_BK"), QStringLiteral("HiCap-Prof.gif"));
    EXPECT_EQ(picture("HCF", "DClass"), QStringLiteral("HiCap-LtProd.gif"));
}

TEST(PPDFacts, AreTheModelAsPeopleKnowItAndWhatIsFitted)
{
    const WithAccessories fitted(
        {{"Option1", "None"}, {"Option2", "OCT"}, {"Option4", "None"}, {"Option5", "False"}, {"Option8", "True"}});
    const CurrentPrinter printer;
    EXPECT_EQ(PPDCopyFittedAccessories(PPDGetCurrent()),
              (QStringList{QStringLiteral("Finisher: Offset catch tray"), QStringLiteral("Job storage")}));
    EXPECT_EQ(PPDCopyFittedAccessories(nullptr), QStringList());

    char model[] = "Veltra", nickname[] = "Kesta Veltra PS";
    ppd_file_t ppd{};
    ppd.nickname = nickname;
    EXPECT_EQ(PPDCopyModelName(&ppd), QStringLiteral("Kesta Veltra PS"));
    ppd.modelname = model;
    EXPECT_EQ(PPDCopyModelName(&ppd), QStringLiteral("Veltra"));
    model[0] = 0;
    EXPECT_EQ(PPDCopyModelName(&ppd), QStringLiteral("Kesta Veltra PS"));
}

} // namespace
} // namespace kesta
