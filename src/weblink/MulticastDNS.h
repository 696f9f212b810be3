#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace kesta {

// A query like res_query: the length of the answer, or -1 with errno set. On a system before 10.2.3 a name that ends in
// the label "local" is asked for by multicast: three rounds, each of which ends when nothing has come for a second;
// ETIMEDOUT when none brought a reply to this query.
int mDNS_res_query(const std::string& name, int dnsClass, int type, std::span<std::uint8_t> answer);

} // namespace kesta
