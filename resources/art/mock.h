// A picture of the whole panel as it looks at work, to judge the images by.
#pragma once

#include "platform/interface_description.h"
#include "resources/art/canvas.h"

namespace r7::art {

/// The background with every control at its start value, one marker shown held, and curves on the displays.
Canvas mock_panel(const InterfaceDescription& description, int scale);

} // namespace r7::art
