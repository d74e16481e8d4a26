// What is committed in the resources, for the tests.
#pragma once

#include "platform/interface_description.h"
#include "tests/support/canvas.h"

#include <string>

namespace r7::art {

/// The panel's own interface description; empty, and the test fails, where it cannot be read.
InterfaceDescription described_panel();

/// The image of a name, "@2x" included where it is wanted; the test fails where there is none.
r7::Canvas image_named(const std::string& name);

} // namespace r7::art
