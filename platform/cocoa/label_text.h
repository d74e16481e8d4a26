// Text attributes as AppKit's.
#pragma once

#include "platform/cocoa/appkit_compat.h"
#include "platform/text.h"

namespace r7 {

/// The attributes of a text in the system's label font, or nil where they paint nothing.
NSDictionary* native_attributes(const TextAttributes& attributes);

} // namespace r7
