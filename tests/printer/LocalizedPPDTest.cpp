#include "pde/interface/PlugInBundle.h"
#include "platform/system/SystemConfiguration.h"
#include "printer/PPDUtilities.h"
#include "support/CurrentPrinter.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

namespace kesta {
namespace {

class SystemOfVersion : public SystemConfiguration {
public:
    explicit SystemOfVersion(std::optional<SystemVersion> version) : version_(version) {}
    std::optional<QString> consoleUser() const override { return std::nullopt; }
    std::optional<QString> computerName() const override { return std::nullopt; }
    std::optional<QString> primaryInterface() const override { return std::nullopt; }
    QStringList ipv4Addresses(const QString&) const override { return {}; }
    std::optional<SystemVersion> systemVersion() const override { return version_; }

private:
    std::optional<SystemVersion> version_;
};

// The text of a choice that the localisation bundle of these resources translates.
QString TextWith(const QString& resources, std::optional<SystemVersion> version)
{
    LoadBundle(kPlugInIdentifier, {.resourcesPath = resources});
    SystemOfVersion system(version);
    const WhileInstalled installed(system);
    const test::CurrentPrinter printer;
    return PPDCopyChoiceText(PPDGetCurrent(), "Jog", "EndOfSet").value_or(QString());
}

TEST(LocalizedPPD, TheLocalisationBundleGetsTheOpenedPPD)
{
    const QString resources = QStringLiteral(LOCALIZER_RESOURCES);
    EXPECT_EQ(TextWith(resources, SystemVersion{10, 5, 0}), QStringLiteral("Localized"));
    EXPECT_EQ(TextWith(resources, SystemVersion{10, 4, 11}), QStringLiteral("Offset each set"));
    EXPECT_EQ(TextWith(resources, std::nullopt), QStringLiteral("Offset each set"));
}

TEST(LocalizedPPD, WithoutABundleThePPDIsTakenAsItIs)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(TextWith(QStringLiteral("/nowhere"), SystemVersion{10, 5, 0}), QStringLiteral("Offset each set"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

} // namespace
} // namespace kesta
