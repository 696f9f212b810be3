#include "support/Accessories.h"

#include "pde/ticket/TicketUtilities.h"
#include "printer/InstallableOptions.h"
#include "printer/PPDUtilities.h"
#include "product/InstalledFeatures.h"
#include "support/CurrentPrinter.h"

#include <stdexcept>

namespace kesta::test {

WithFeatures::WithFeatures(std::set<QString> features)
{
    for (const QString& feature : features)
        names_.push_back(feature.toStdString());
    for (const std::string& name : names_)
        rows_.push_back({.feature = name.c_str(), .option = nullptr, .choice = nullptr});
    UnloadInstallableOptions();
    LoadInstallableOptions(nullptr, rows_);
}

WithFeatures::~WithFeatures()
{
    UnloadInstallableOptions();
}

WithAccessories::WithAccessories(std::initializer_list<std::pair<const char*, const char*>> options)
{
    PPDVariant ppd;
    for (const auto& [option, choice] : options)
        ppd.setDefault(option, choice);
    const CurrentPrinter printer(ppd);
    UnloadInstallableOptions();
    if (!LoadInstallableOptions(PPDGetCurrent(), InstalledFeatures))
        throw std::runtime_error("the accessories can't be loaded");
}

WithAccessories::~WithAccessories()
{
    UnloadInstallableOptions();
}

} // namespace kesta::test
