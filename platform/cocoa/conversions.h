// The panel's plain types as AppKit's, and back.
#pragma once

#include "platform/geometry.h"

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

namespace r7 {

inline NSPoint to_native(Point point)
{
    return NSMakePoint(point.x, point.y);
}

inline NSRect to_native(const Rect& rect)
{
    return NSMakeRect(rect.x, rect.y, rect.width, rect.height);
}

inline Point from_native(NSPoint point)
{
    return {point.x, point.y};
}

inline Rect from_native(NSRect rect)
{
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

/// The text as UTF-8; of nil, an empty one.
inline std::string from_native(NSString* text)
{
    const char* const utf8 = [text UTF8String];
    return utf8 ? utf8 : "";
}

/// The text; bytes that are no UTF-8 make it empty.
inline NSString* to_native(std::string_view utf8)
{
    NSString* const text = [[[NSString alloc] initWithBytes:utf8.data()
                                                     length:utf8.size()
                                                   encoding:NSUTF8StringEncoding] autorelease];
    return text ? text : @"";
}

} // namespace r7
