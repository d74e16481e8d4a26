// Mouse cursors as AppKit's.
#pragma once

#include "platform/cocoa/appkit_compat.h"
#include "platform/cursor.h"

namespace r7 {

/// The cursor, autoreleased; for null the system's arrow.
NSCursor* native_cursor(const CursorRef& cursor);

} // namespace r7
