// "r7-bg": the face plate with its recesses, scales, glass and print.
#pragma once

#include "resources/art/canvas.h"
#include "resources/art/description.h"

namespace r7::art {

/// Fills a canvas of the panel's size. What is printed for a control that the description lacks is left out.
void paint_background(Canvas& canvas, const Description& description);

} // namespace r7::art
