#include "printer/DeviceProfile.h"
#include "pde/interface/PlugInBundle.h"
#include "product/InstalledFeatures.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

namespace kesta {
namespace {

// The plug-in's bundle has its resources here, and the profile is read from them.
void LoadProfile(const QString& resources)
{
    KDPFinalize();
    LoadBundle(kPlugInIdentifier, {.resourcesPath = resources});
    KDPInitialize();
}

void LoadProfileText(const QByteArray& xml)
{
    const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("Device Profile.plist")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(xml);
    file.close();
    LoadProfile(directory.path());
}

class DeviceProfile : public testing::Test {
protected:
    ~DeviceProfile() override { KDPFinalize(); }
};

TEST_F(DeviceProfile, QueriesReadTheProductsProfile)
{
    LoadProfile(QStringLiteral(TEST_RESOURCES));
    const Dictionary* staple = KDPGetFeature("Staple");
    ASSERT_NE(staple, nullptr);
    EXPECT_EQ(KDPGetFeature("staple"), nullptr);
    EXPECT_EQ(*KDPGetFeatureProperty(*staple, "PPDOption"), Value("StapleLocation"));
    EXPECT_EQ(KDPGetFeatureProperty(*staple, "Syntax"), nullptr);
    EXPECT_NE(KDPGetFeatureSyntax(*staple, "Keyword"), nullptr);
    EXPECT_EQ(KDPGetFeatureSyntax(*staple, "Number"), nullptr);

    const Array single = KDPGetKeywordsWithPropertyAndValue(*staple, "Staples", Number::Index(1));
    ASSERT_EQ(single.size(), 2u);
    EXPECT_EQ(*KDPGetFeatureProperty(*single[0].dictionary(), "Accessory"), Value("SingleStapleKey"));
    EXPECT_EQ(KDPGetKeywordsWithPropertyAndValue(*staple, "Staples", Number::Index(3)), Array());
    EXPECT_EQ(KDPGetKeywordsWithPropertyAndValue(*KDPGetFeature("Copies"), "Staples", Number::Index(1)), Array());

    const Array finishing = KDPGetFeaturesWithPropertyAndValue("Category", "Finishing");
    EXPECT_NE(std::ranges::find(finishing, Value(*staple)), finishing.end());
    EXPECT_LT(finishing.size(), KDPGetFeaturesWithProperty("Category").size());
    EXPECT_EQ(KDPGetFeaturesWithProperty("NoSuchProperty"), Array());
}

TEST_F(DeviceProfile, DefaultsComeInThreeKinds)
{
    LoadProfile(QStringLiteral(TEST_RESOURCES));
    const auto expectDefault = [](const char* feature, const char* kind, const Value& value) {
        EXPECT_EQ(KDPGetFeatureDefaultValue(*KDPGetFeature(feature)),
                  (FeatureDefault{QString::fromLatin1(kind), value}))
            << feature;
    };
    expectDefault("Duplex", "Keyword", "None");
    expectDefault("PageSize", "Name", "Letter");
    expectDefault("Resolution", "Number", Number::Index(600));
    EXPECT_EQ(KDPGetFeatureDefaultValue(*KDPGetFeature("SecurePrint")), std::nullopt);

    const Dictionary noDefaultKeyword{
        {"Syntax", Dictionary{{"Keyword", Dictionary{{"A", Dictionary{{"Default", false}}}, {"B", "not an entry"}}},
                              {"Number", Dictionary{{"Default", Number::Index(7)}}}}}};
    EXPECT_EQ(KDPGetFeatureDefaultValue(noDefaultKeyword),
              (FeatureDefault{QStringLiteral("Number"), Number::Index(7)}));
}

TEST_F(DeviceProfile, AccessoriesOfTheProfileAreInTheFeatureTable)
{
    LoadProfile(QStringLiteral(TEST_RESOURCES));
    const Array fitted = KDPGetFeaturesWithProperty("Accessory");
    EXPECT_FALSE(fitted.empty());
    for (const Value& feature : fitted) {
        const QString accessory = *KDPGetFeatureProperty(*feature.dictionary(), "Accessory")->string();
        const bool isKnown = std::ranges::any_of(
            InstalledFeatures, [&](const FeatureRow& row) { return accessory == QLatin1String(row.feature); });
        EXPECT_TRUE(isKnown) << accessory.toStdString();
    }
}

TEST_F(DeviceProfile, WithoutAReadableProfileEveryAnswerIsEmpty)
{
    LoadProfile(QStringLiteral("/nowhere"));
    EXPECT_EQ(KDPGetFeature("Staple"), nullptr);
    EXPECT_EQ(KDPGetFeaturesWithProperty("Category"), Array());
    for (const char* damaged :
         {"", "<plist version=\"1.0\"><dict><key>Features</key>", "<plist version=\"1.0\"><array/></plist>",
          "<plist version=\"1.0\"><dict><key>Features</key><array/></dict></plist>"}) {
        LoadProfileText(damaged);
        EXPECT_EQ(KDPGetFeature("Staple"), nullptr) << damaged;
        EXPECT_EQ(KDPGetFeaturesWithProperty("Category"), Array());
    }
    LoadProfileText("<plist version=\"1.0\"><dict><key>Features</key><dict><key>Odd</key><string>x</string>"
                    "<key>Staple</key><dict><key>Syntax</key><string>x</string></dict></dict></dict></plist>");
    EXPECT_EQ(KDPGetFeaturesWithProperty("Category"), Array());
    EXPECT_EQ(KDPGetFeatureDefaultValue(*KDPGetFeature("Staple")), std::nullopt);
}

TEST_F(DeviceProfile, ALoadedProfileStays)
{
    LoadProfile(QStringLiteral(TEST_RESOURCES));
    const Dictionary* staple = KDPGetFeature("Staple");
    LoadBundle(kPlugInIdentifier, {.resourcesPath = QStringLiteral("/nowhere")});
    KDPInitialize();
    EXPECT_EQ(KDPGetFeature("Staple"), staple);
}

} // namespace
} // namespace kesta
