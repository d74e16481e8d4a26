// The borderless window that a zoomed editor is shown in.
#pragma once

#include "platform/cocoa/appkit_compat.h"

/// Always borderless, buffered and made at once, whatever is asked for; clear, with a shadow. It can be the
/// key window all the same.
@interface QM_R7_Overlay_Window : NSWindow
@end
