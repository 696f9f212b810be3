#pragma once

namespace kesta {

// Puts another implementation of a service (Clock, Notices, ...) in place while it lives, for tests:
//     FakeClock clock;
//     const WhileInstalled installed(clock);
// Nested ones end in reverse order.
template <class Service> class WhileInstalled {
public:
    explicit WhileInstalled(Service& service) : before_(Service::install(&service)) {}
    ~WhileInstalled() { Service::install(before_); }
    WhileInstalled(const WhileInstalled&) = delete;
    WhileInstalled& operator=(const WhileInstalled&) = delete;

private:
    Service* before_;
};

template <class Service> WhileInstalled(Service&) -> WhileInstalled<typename Service::Interface>;

} // namespace kesta
