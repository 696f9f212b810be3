#pragma once

#include <utility>

namespace kesta {

// A service's implementation in use: the one installed, else the standard one. Belongs in one .cpp file.
template <class Service> class Installed {
public:
    explicit Installed(Service& standard) : standard_(standard) {}

    Service& current() { return installed_ ? *installed_ : standard_; }
    Service* install(Service* service) { return std::exchange(installed_, service); }

private:
    Service& standard_;
    Service* installed_ = nullptr;
};

} // namespace kesta
