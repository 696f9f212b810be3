#pragma once

#include "host/commandline/Console.h"
#include "platform/plugins/Bundle.h"

#include <gtest/gtest.h>

#include <ostream>

namespace kesta::host::test {

// The program's own bundle, with its English texts.
inline const Bundle& PrintBundle()
{
    const BundleOrError loaded = LoadBundleAt(QStringLiteral(KESTA_PRINT_BUNDLE));
    EXPECT_TRUE(loaded.bundle) << KESTA_PRINT_BUNDLE;
    return *loaded.bundle;
}

inline QString OnConsole(const Message& message)
{
    return ConsoleSentence(message, PrintBundle());
}

} // namespace kesta::host::test
