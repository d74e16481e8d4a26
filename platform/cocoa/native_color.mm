// Colours as AppKit's.
#include "platform/cocoa/native_color.h"

#include "platform/cocoa/cocoa_image.h"

#include <cmath>

namespace r7 {

NSColor* native_color(const Color& color)
{
    const Rgba* rgba = color.rgba();
    if (!rgba) return [NSColor colorWithPatternImage:CocoaImage::of(*color.pattern_image()).native()];
    if (!std::isfinite(rgba->red + rgba->green + rgba->blue + rgba->alpha)) return nil;
    return [NSColor colorWithDeviceRed:rgba->red green:rgba->green blue:rgba->blue alpha:rgba->alpha];
}

} // namespace r7
