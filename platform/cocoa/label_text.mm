// Text in the system's label font.
#include "platform/cocoa/label_text.h"

#include "platform/cocoa/conversions.h"
#include "platform/cocoa/native_color.h"

namespace r7 {

NSDictionary* native_attributes(const TextAttributes& attributes)
{
    if (!(attributes.font_size > 0.0) || !std::isfinite(attributes.font_size)) return nil;
    NSMutableParagraphStyle* const paragraph =
        [[[NSParagraphStyle defaultParagraphStyle] mutableCopy] autorelease];
    if (attributes.alignment == TextAlignment::center) [paragraph setAlignment:NSTextAlignmentCenter];
    NSMutableDictionary* const native = [NSMutableDictionary dictionary];
    [native setObject:[NSFont labelFontOfSize:attributes.font_size] forKey:NSFontAttributeName];
    [native setObject:paragraph forKey:NSParagraphStyleAttributeName];
    NSColor* const color = attributes.color ? native_color(*attributes.color) : nil;
    if (color) [native setObject:color forKey:NSForegroundColorAttributeName];
    return native;
}

double width_of_text(std::string_view utf8, double font_size)
{
    NSDictionary* const native = native_attributes({.font_size = font_size, .color = {}});
    return native ? [to_native(utf8) sizeWithAttributes:native].width : 0.0;
}

} // namespace r7
