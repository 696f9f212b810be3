#pragma once

#include <vector>

namespace kesta {

// A route of the kernel's main table to every IPv4 address that no other route covers.
struct DefaultRoute {
    unsigned metric = 0;    // the lowest one is taken
    int interfaceIndex = 0; // from 1
};

// All of them as the kernel lists them; none when it can't be asked.
std::vector<DefaultRoute> DefaultRoutes();

} // namespace kesta
