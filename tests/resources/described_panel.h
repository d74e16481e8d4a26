// The panel's own interface description, for the tests.
#pragma once

#include "platform/interface_description.h"

namespace r7::art {

/// Read from the resources; empty, and the test fails, where that cannot be.
InterfaceDescription described_panel();

} // namespace r7::art
