// Colours as AppKit's.
#pragma once

#include "platform/cocoa/appkit_compat.h"
#include "platform/color.h"

namespace r7 {

/// The colour, autoreleased, or nil where it paints nothing.
NSColor* native_color(const Color& color);

} // namespace r7
