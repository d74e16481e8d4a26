// "r7-bg": the face plate with its recesses, scales, glass and print; "status-bar": the strip below it.
#pragma once

#include "platform/interface_description.h"
#include "resources/art/canvas.h"

namespace r7::art {

/// Fills a canvas of the panel's size. What is printed for a control that the description lacks is left out.
void paint_background(Canvas& canvas, const InterfaceDescription& description);

inline constexpr double kStatusBarHeight = 24.0; ///< in points

/// Fills a canvas as wide as the panel and kStatusBarHeight high.
void paint_status_bar(Canvas& canvas, const InterfaceDescription& description);

} // namespace r7::art
