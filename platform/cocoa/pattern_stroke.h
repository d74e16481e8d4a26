// Strokes in a pattern colour, where the system itself has none.
#pragma once

#include "platform/cocoa/appkit_compat.h"

namespace r7 {

/// GNUstep strokes with the last plain colour in place of a pattern: this strokes with the pattern. On a Mac
/// NSBezierPath does, and this does nothing.
void stroke_with_pattern(NSBezierPath* path, NSColor* pattern);

} // namespace r7
