#pragma once

#include <utility>

namespace kesta {

// A service's implementation in use: the one installed, else the standard one.
template <class Service> class Installed {
public:
    explicit Installed(Service& standard) : standard_(standard) {}

    Service& current() { return installed_ ? *installed_ : standard_; }
    Service* install(Service* service) { return std::exchange(installed_, service); }

private:
    Service& standard_;
    Service* installed_ = nullptr;
};

// The one of a service, made at the first call. For the one .cpp file that has the standard implementation.
template <class Service, class Standard> Installed<Service>& InstalledOr()
{
    static Standard standard;
    static Installed<Service> installed(standard);
    return installed;
}

} // namespace kesta
