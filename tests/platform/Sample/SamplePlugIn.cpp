// A plug-in for the tests of bundles: it counts how often it was loaded, and has a factory.
#include <cstdlib>
#include <string>

namespace {

const bool counted = [] {
    const char* before = std::getenv("SAMPLE_PLUGIN_LOADS");
    return setenv("SAMPLE_PLUGIN_LOADS", std::to_string(before ? std::atoi(before) + 1 : 1).c_str(), 1) == 0;
}();

} // namespace

struct SixteenBytes {
    unsigned char bytes[16];
};

extern "C" int SampleAnswer()
{
    return counted ? 42 : 0;
}

extern "C" void* SampleFactory(const void*, SixteenBytes type)
{
    static int instance = 0;
    return type.bytes[0] == 0xBD ? &instance : nullptr;
}
