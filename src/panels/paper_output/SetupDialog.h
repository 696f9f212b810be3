#pragma once

#include "toolkit/ModalLoop.h"

#include <QLatin1StringView>

namespace kesta {

struct Bundle;

// Runs the window until it is cancelled, or until OK is pressed and accepted; Help opens the page.
ModalResult RunSetupDialog(const Bundle& bundle, QWidget& window, QLatin1StringView helpPage,
                           const std::function<bool()>& accept);

} // namespace kesta
