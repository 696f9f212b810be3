#pragma once

#include "platform/printsystem/PrintSession.h"
#include "printer/FeatureMap.h"
#include "support/PPDVariant.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kesta::test {

// Both of these take the place of what is loaded, and nothing is loaded afterwards: one at a time.

// Makes exactly these features installed while it lives, whatever the PPD.
class WithFeatures {
public:
    explicit WithFeatures(std::set<QString> features);
    ~WithFeatures();
    WithFeatures(const WithFeatures&) = delete;

private:
    std::vector<std::string> names_;
    std::vector<FeatureRow> rows_;
};

// The product's printer with these accessories fitted, and, for those not named, what its PPD has:
//     const WithAccessories fitted({{"Option2", "CClass"}, {"Option4", "None"}});
class WithAccessories {
public:
    explicit WithAccessories(std::initializer_list<std::pair<const char*, const char*>> options);
    ~WithAccessories();
    WithAccessories(const WithAccessories&) = delete;
};

} // namespace kesta::test
