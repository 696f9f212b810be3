#pragma once

#include "platform/printsystem/PrintSession.h"
#include "support/PPDVariant.h"

namespace kesta::test {

// A print session whose printer has this PPD, as the current one while it lives; the PPD is closed with it.
class CurrentPrinter {
public:
    explicit CurrentPrinter(const PPDVariant& ppd = {});
    explicit CurrentPrinter(const QString& ppdPath);
    ~CurrentPrinter();
    CurrentPrinter(const CurrentPrinter&) = delete;

    // The printer's PPD from now on; one that is open stays open.
    void setPPD(const QString& path);

    PrintSession session;

private:
    PrintSession* before_;
};

} // namespace kesta::test
