#pragma once

namespace kesta {

// Tells assistive programs what the controls that draw themselves are, are called and show. The controls see to it that
// it happens before the first of them is there.
void InstallAccessibleControls();

} // namespace kesta
